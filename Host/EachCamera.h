#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// How a command runs on several cameras.
struct EachCamera {
    std::vector<std::string> cameras;
    std::optional<std::string> input{}; ///< the standard input of each run, if not that of this program
    bool oneByOne = false;              ///< else all at once
    bool json = false;                  ///< the runs print JSON, and become one document

    /// Runs the command, for each camera in a process of its own, since the library has one buffer per text for all
    /// cameras of a process. Prints every line of a run with the camera in front, and a summary at the end. Signals
    /// that end this program are passed on to every run.
    /// @param run runs the command on one camera, in the process of that camera
    /// @return the largest exit code; 128 plus its number for a run that a signal ended
    [[nodiscard]] int Run(const std::function<int(const std::string& camera)>& run) const;
};

} // namespace Host
