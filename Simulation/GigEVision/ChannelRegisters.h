#pragma once

#include <chrono>
#include <cstdint>
#include <map>

namespace Simulation::GigEVision {

/// The bootstrap registers that belong to the protocol and not to the camera behind it, one word each: what a device
/// has of channels, its heartbeat and its clock. A start forgets what was written to them.
class ChannelRegisters {
public:
    /// @param start the time of the camera at which its clock begins
    explicit ChannelRegisters(std::chrono::microseconds start);

    [[nodiscard]] bool Has(std::uint32_t address) const { return words.contains(address); }
    [[nodiscard]] bool IsWritable(std::uint32_t address) const;
    [[nodiscard]] std::uint32_t Get(std::uint32_t address) const { return words.at(address); }
    /// What an application writes; the clock, if it is the clock's, is set or read at that time of the camera.
    void Write(std::uint32_t address, std::uint32_t value, std::chrono::microseconds time);

    [[nodiscard]] std::chrono::milliseconds Heartbeat() const;
    /// Shows who controls the device and how; all zero for nobody.
    void ShowControl(std::uint32_t privilege, std::uint32_t applicationAddress, std::uint16_t applicationPort);
    /// Closes the stream channel, as the end of a control channel does.
    void CloseStream();

private:
    void UseClock(std::uint32_t order, std::chrono::microseconds time);

    std::map<std::uint32_t, std::uint32_t> words;
    std::chrono::microseconds clockStart;
};

} // namespace Simulation::GigEVision
