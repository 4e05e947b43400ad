#pragma once

#include "Host/Pictures/PictureSource.h"

#include <SDK4/IControlPort.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace Host {

/// A connection to a camera, simulated in this process or on the network.
class Connection {
public:
    Connection() = default;
    virtual ~Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// All accesses to the camera go through it. Valid as long as the connection.
    [[nodiscard]] virtual SDK4::IControlPort& Port() = 0;

    /// "a simulated camera", "the camera at 192.168.1.10"
    [[nodiscard]] virtual std::string Describe() const = 0;

    /// Whether the camera is on the network of this machine.
    [[nodiscard]] virtual bool IsOnNetwork() const { return false; }

    /// Waits; a simulated camera advances its clock instead.
    virtual void Wait(std::chrono::microseconds time) = 0;
    /// Tells a simulated camera that time has passed.
    virtual void TimePassed(std::chrono::microseconds time) = 0;

    /// Whether this host can write to the camera.
    [[nodiscard]] virtual bool HasControl() const = 0;
    /// For commands that write. Takes control, if another program has released it.
    /// @throws OpenError while another program has it, or if it was not wanted
    virtual void RequireControl() = 0;
    /// If a write failed for lack of control since the last call, why this program has none; else empty.
    [[nodiscard]] virtual std::string TakeDenial() = 0;
    /// Checks that the connection was never lost and the camera has not restarted.
    /// @throws ChannelLost, unless already thrown
    virtual void RequireUnbroken() = 0;

    /// Opens the stream of pictures, which needs control. Acquisition must be stopped. One stream at a time.
    /// @param format of the pictures that the camera is set to
    /// @throws std::runtime_error with the reason
    [[nodiscard]] virtual std::unique_ptr<PictureSource> OpenStream(const PictureFormat& format) = 0;

    /// For a recorded camera, at the end: what was recorded but not repeated, or empty.
    [[nodiscard]] virtual std::string DescribeRest() const { return ""; }

    /// Saves the camera to the state file, if there is one.
    virtual void SaveState() const = 0;
};

} // namespace Host
