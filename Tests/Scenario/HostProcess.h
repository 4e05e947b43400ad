#pragma once

#include "Tests/Support/Files.h"
#include "Tests/Support/Running.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>

namespace Scenario {

using Test::Content;
using Test::Replaced;
using Test::Running;
using Test::TemporaryFile;

/// The result of a run of the reference host.
struct Outcome {
    int code;
    std::string out;
    std::string err;
};

/// Runs the reference host, or another program, through a shell. Several may run at once.
inline Outcome RunHost(const std::string& arguments, const std::string& program = QDV12_HOST,
                       const std::string& input = "/dev/null") {
    static std::atomic<int> runs = 0;
    const std::string run = std::to_string(++runs);
    const std::string out = TemporaryFile("out" + run);
    const std::string err = TemporaryFile("err" + run);
    const std::string files = " >" + out + " 2>" + err + " <" + input;
    const std::chrono::minutes deadline{10}; // timeouts take minutes
    Running shell("/bin/sh", {"-c", program + " " + arguments + files}, Running::both, deadline);
    const int code = shell.End();
    Outcome outcome{code, Content(out), Content(err)};
    EXPECT_FALSE(shell.HasTimedOut()) << outcome.out << outcome.err;
    std::filesystem::remove(out);
    std::filesystem::remove(err);
    return outcome;
}

inline testing::AssertionResult Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos ? testing::AssertionSuccess()
                                                : testing::AssertionFailure() << '"' << part << "\" is not in\n"
                                                                              << text;
}

} // namespace Scenario
