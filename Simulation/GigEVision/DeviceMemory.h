#pragma once

#include "Common/Gvcp.h"
#include "Simulation/GigEVision/ChannelRegisters.h"
#include "Simulation/GigEVision/StreamChannel.h"
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
    DeviceMemory(SimulatedCamera& shown, ChannelRegisters& ofChannel, StreamChannel& ofStream)
        : camera(shown),
          channel(ofChannel),
          stream(ofStream) {}

    /// Reads as many bytes as there is room for.
    [[nodiscard]] Status Read(std::uint32_t address, std::span<std::uint8_t> bytes);
    /// Writes all or nothing. The privilege is not to be written here.
    /// @param writer the address of the application that writes
    [[nodiscard]] Status Write(std::uint32_t address, std::span<const std::uint8_t> bytes, std::uint32_t writer);

    // Single registers, whose value is the same number whatever the byte order in memory.
    [[nodiscard]] Status ReadWord(std::uint32_t address, std::uint32_t& value);
    [[nodiscard]] Status WriteWord(std::uint32_t address, std::uint32_t value, std::uint32_t writer);

private:
    [[nodiscard]] Status CheckAddress(std::uint32_t address, std::size_t length) const;
    [[nodiscard]] bool IsProtected(std::uint32_t address, std::size_t length) const;
    /// Calls @p visit with each bootstrap register that the bytes are written to, and its word.
    template <typename Visit>
    void ForEachWord(std::uint32_t address, std::span<const std::uint8_t> bytes, const Visit& visit) const;
    /// Exchanges what the camera and the wire have in different byte order.
    void SwapBytes(std::uint32_t address, std::span<std::uint8_t> bytes) const;

    SimulatedCamera& camera;
    ChannelRegisters& channel;
    StreamChannel& stream;
};

} // namespace Simulation::GigEVision
