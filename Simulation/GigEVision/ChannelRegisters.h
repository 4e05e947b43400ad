#pragma once

#include "Simulation/RegisterSpace.h"

#include <chrono>
#include <cstdint>

namespace Simulation::GigEVision {

/// The bootstrap registers of role Channel, one word each. They belong to the protocol, not to the camera: heartbeat,
/// clock, controller, stream destination. A restart resets them.
class ChannelRegisters {
public:
    /// @param start the camera's time when the timestamp is 0
    ChannelRegisters(RegisterSpace& ofCamera, std::chrono::microseconds start);

    [[nodiscard]] static bool IsWritable(const Register& entry);
    /// Writes a register for an application.
    /// @param time the camera's time, to reset or latch the timestamp
    void Write(const Register& entry, std::uint32_t value, std::chrono::microseconds time);

    /// Ticks of the clock, which counts microseconds, at that time of the camera.
    [[nodiscard]] std::uint64_t TimestampAt(std::chrono::microseconds time) const {
        return static_cast<std::uint64_t>((time - timestampOrigin).count());
    }
    [[nodiscard]] std::chrono::milliseconds Heartbeat() const;
    [[nodiscard]] std::uint32_t Privilege() const;
    /// Sets the registers that report the controller. All are zero if there is none.
    void ShowControl(std::uint32_t privilege, std::uint32_t applicationAddress, std::uint16_t applicationPort);
    /// Sets the source port of the stream.
    void ShowStreamSource(std::uint16_t port);
    /// Closes the stream channel.
    void CloseStream();
    void Restart(std::chrono::microseconds time);

private:
    void ControlTimestamp(std::uint32_t command, std::chrono::microseconds time);

    RegisterSpace& space;
    const RegisterSpace::Content powerUp;
    std::chrono::microseconds timestampOrigin;
    std::uint16_t streamSource = 0;
};

} // namespace Simulation::GigEVision
