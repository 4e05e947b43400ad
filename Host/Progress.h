#pragma once

#include <cstddef>
#include <string>

namespace Host {

/// The progress of a run: a bar on standard error, only on a styled terminal.
class Progress {
public:
    explicit Progress(std::size_t totalSteps);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// @param name of the step that begins
    void Step(const std::string& name);

private:
    std::size_t total;
    std::size_t done = 0;
    bool shown;
};

} // namespace Host
