#pragma once

#include <chrono>
#include <csignal>

namespace Host {

/// While one lives, SIGINT, SIGTERM and SIGHUP (of a terminal that is closed) end nothing but are remembered, so that
/// what runs can end in good order.
class Interrupts {
public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// Whether a signal came since the outermost one was made.
    [[nodiscard]] static bool Received();
    /// Whether it was one that is to end the program, and not only what runs in it.
    [[nodiscard]] static bool ReceivedTermination();
    /// Waits, but not beyond a signal.
    static void Sleep(std::chrono::milliseconds time);
};

/// While one lives, output that nobody reads any more fails instead of ending this program (SIGPIPE): what was begun on
/// a camera is brought to its end.
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
