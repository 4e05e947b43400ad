#pragma once

#include <csignal>
#include <map>

namespace Host {

/// Defers signals that would end this program until the object is destroyed, so that control of the camera is released
/// first; otherwise the camera stays locked until the heartbeat times out. A second signal ends the program at once. An
/// Interrupts object takes precedence.
class DeferredTermination {
public:
    DeferredTermination();
    ~DeferredTermination();
    DeferredTermination(const DeferredTermination&) = delete;
    DeferredTermination& operator=(const DeferredTermination&) = delete;

    /// Whether a signal is pending.
    [[nodiscard]] static bool IsDue();

    /// While one exists, no signal is due, so that the camera can be brought to rest.
    class Suspension {
    public:
        Suspension();
        ~Suspension();
        Suspension(const Suspension&) = delete;
        Suspension& operator=(const Suspension&) = delete;
    };

private:
    std::map<int, struct sigaction> before; ///< by signal
};

} // namespace Host
