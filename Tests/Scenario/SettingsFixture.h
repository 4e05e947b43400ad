#pragma once

#include "Tests/Scenario/HostProcess.h"

namespace Scenario {

/// A simulated camera with a state file for the running test, and a file for its settings.
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

} // namespace Scenario
