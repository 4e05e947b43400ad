#pragma once

#include "Common/Gvcp.h"
#include "Simulation/GigEVision/ChannelRegisters.h"
#include "Simulation/SimulatedCamera.h"

#include <cstdint>
#include <span>

namespace Simulation::GigEVision {

using Common::Gvcp::Status;

/// A camera as its control channel shows it: what may be written, and in what order bytes travel. The camera tells
/// which addresses there are. Below bootstrapEnd words are big-endian and texts are bytes; all other words are
/// little-endian. Lengths are multiples of 4 up to largestMemory.
class DeviceMemory {
public:
    DeviceMemory(SimulatedCamera& shown, ChannelRegisters& ofChannel) : camera(shown), channel(ofChannel) {}

    /// Reads as many bytes as there is room for.
    [[nodiscard]] Status Read(std::uint32_t address, std::span<std::uint8_t> bytes);
    /// Writes all or nothing. The privilege is not to be written here.
    [[nodiscard]] Status Write(std::uint32_t address, std::span<const std::uint8_t> bytes);

    // Single registers, whose value is the same number whatever the byte order in memory.
    [[nodiscard]] Status ReadWord(std::uint32_t address, std::uint32_t& value);
    [[nodiscard]] Status WriteWord(std::uint32_t address, std::uint32_t value);

private:
    [[nodiscard]] Status CheckAddress(std::uint32_t address, std::size_t length) const;
    [[nodiscard]] bool IsProtected(std::uint32_t address, std::size_t length) const;
    /// Exchanges what the camera and the wire have in different byte order.
    void SwapBytes(std::uint32_t address, std::span<std::uint8_t> bytes) const;

    SimulatedCamera& camera;
    ChannelRegisters& channel;
};

} // namespace Simulation::GigEVision
