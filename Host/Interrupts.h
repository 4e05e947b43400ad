#pragma once

#include <chrono>
#include <csignal>

namespace Host {

/// While one exists, SIGINT, SIGTERM and SIGHUP (terminal closed) do not end the program but are recorded, so that a
/// command can end cleanly.
class Interrupts {
public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// Whether a signal was received since the outermost object was created.
    [[nodiscard]] static bool Received();
    /// Whether it was a signal to end the program (SIGTERM, SIGHUP), not just the command.
    [[nodiscard]] static bool ReceivedTermination();
    /// Sleeps until a signal at most.
    static void Sleep(std::chrono::milliseconds time);
};

/// While one exists, output to a closed pipe fails instead of ending this program (SIGPIPE), so that a command on a
/// camera is completed.
class IgnoredPipeSignal {
public:
    IgnoredPipeSignal();
    ~IgnoredPipeSignal();
    IgnoredPipeSignal(const IgnoredPipeSignal&) = delete;
    IgnoredPipeSignal& operator=(const IgnoredPipeSignal&) = delete;

private:
    struct sigaction before {};
};

} // namespace Host
