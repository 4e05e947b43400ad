#pragma once

#include "Tests/Scenario/HostProcess.h"

namespace Scenario {

/// A simulated camera whose memory lies in a file of the running test, and a file for its settings.
class HostSettings : public testing::Test {
protected:
    ~HostSettings() override {
        for (const std::string& file : {state, saved, other, input}) {
            std::filesystem::remove(file);
        }
    }

    [[nodiscard]] Outcome Run(const std::string& arguments) const { return RunHost(arguments + " --state " + state); }
    void Write(const std::string& file, const std::string& content) const { std::ofstream(file) << content; }

    std::string state = TemporaryFile("state");
    std::string saved = TemporaryFile("saved.json");
    std::string other = TemporaryFile("other.json");
    std::string input = TemporaryFile("input");
};

inline std::string Replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part << " is not in\n" << text;
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
}

} // namespace Scenario
