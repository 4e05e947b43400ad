#pragma once

#include <csignal>
#include <map>

namespace Host {

/// While one lives, a signal that would end this program does so only when this object ends, so that the control of a
/// camera is given back before; of a program that dies with it, it is held until the heartbeat times out. A second one
/// ends the program at once. Who handles signals meanwhile (Interrupts) handles them instead.
class DeferredTermination {
public:
    DeferredTermination();
    ~DeferredTermination();
    DeferredTermination(const DeferredTermination&) = delete;
    DeferredTermination& operator=(const DeferredTermination&) = delete;

    /// Whether this program is to end.
    [[nodiscard]] static bool IsDue();

private:
    std::map<int, struct sigaction> before; ///< by signal
};

} // namespace Host
