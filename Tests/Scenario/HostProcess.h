#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace Scenario {

/// How a run of the reference host ended.
struct Outcome {
    int code;
    std::string out;
    std::string err;
};

inline std::string Content(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

/// A name for a file of the running test and of no other, in this or another process.
inline std::string TemporaryFile(const std::string& name) {
    return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + "." +
           std::to_string(getpid()) + "." + name;
}

/// Runs the reference host, or another program, as a user does; the shell reads the arguments. Several may run at once.
inline Outcome RunHost(const std::string& arguments, const std::string& program = QDV12_HOST,
                       const std::string& input = "/dev/null") {
    static std::atomic<int> runs = 0;
    const std::string run = std::to_string(++runs);
    const std::string out = TemporaryFile("out" + run);
    const std::string err = TemporaryFile("err" + run);
    const std::string files = " >" + out + " 2>" + err + " <" + input;
    const int status = std::system((program + " " + arguments + files).c_str());
    Outcome outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, Content(out), Content(err)};
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
