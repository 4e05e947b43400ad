#pragma once

#include "Simulation/RegisterSpace.h"

#include <chrono>
#include <cstdint>

namespace Simulation::GigEVision {

/// The bootstrap registers of role Channel, one word each, which belong to the protocol and not to the camera behind
/// it: heartbeat, clock, who is in control, where the stream goes. A start forgets what was written to them.
class ChannelRegisters {
public:
    /// @param start the time of the camera at which its clock begins
    ChannelRegisters(RegisterSpace& ofCamera, std::chrono::microseconds start);

    [[nodiscard]] static bool IsWritable(const Register& entry);
    /// What an application writes; the clock, if it is the clock's, is set or read at that time of the camera.
    void Write(const Register& entry, std::uint32_t value, std::chrono::microseconds time);

    /// Ticks of the clock, which counts microseconds, at that time of the camera.
    [[nodiscard]] std::uint64_t TimestampAt(std::chrono::microseconds time) const {
        return static_cast<std::uint64_t>((time - timestampOrigin).count());
    }
    [[nodiscard]] std::chrono::milliseconds Heartbeat() const;
    [[nodiscard]] std::uint32_t Privilege() const;
    /// Shows who controls the device and how; all zero for nobody.
    void ShowControl(std::uint32_t privilege, std::uint32_t applicationAddress, std::uint16_t applicationPort);
    /// Shows from which port the stream comes.
    void ShowStreamSource(std::uint16_t port);
    /// Closes the stream channel, as the end of a control channel does.
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
