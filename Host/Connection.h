#pragma once

#include <SDK4/IControlPort.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace Host {

/// How a camera is reached, whether it is simulated in this process or stands on the network.
class Connection {
public:
    Connection() = default;
    virtual ~Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Every access to the camera goes through it. It lives as long as the connection.
    [[nodiscard]] virtual SDK4::IControlPort& Port() = 0;

    /// "a simulated camera", "the camera at 192.168.1.10"
    [[nodiscard]] virtual std::string Describe() const = 0;

    /// Lets the camera's time pass, before it returns.
    virtual void Wait(std::chrono::microseconds time) = 0;
    /// Tells that time has passed for this host.
    virtual void TimePassed(std::chrono::microseconds time) = 0;

    /// Whether the camera takes what this host writes.
    [[nodiscard]] virtual bool HasControl() const = 0;
    /// For commands that write. Takes control, if another program had it and gave it back.
    /// @throws OpenError while another program has it
    virtual void RequireControl() = 0;
    /// Whether something was not written since the last call, because another program has control: who has it, in words
    /// for the user, else empty.
    [[nodiscard]] virtual std::string TakeDenial() = 0;
    /// At the end of a command: makes sure that the camera was there all the time, and did not start anew meanwhile.
    /// @throws ChannelLost, unless that was thrown before
    virtual void RequireUnbroken() = 0;

    /// Has the state file, if there is one, hold the camera as it is now.
    virtual void SaveState() const = 0;
};

} // namespace Host
