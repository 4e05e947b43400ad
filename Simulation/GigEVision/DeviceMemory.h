#pragma once

#include "Common/Gvcp.h"
#include "Simulation/GigEVision/ChannelRegisters.h"
#include "Simulation/GigEVision/StreamChannel.h"
#include "Simulation/SimulatedCamera.h"

#include <cstdint>
#include <span>

namespace Simulation::GigEVision {

using Common::Gvcp::Status;

/// A camera's memory as seen on the control channel: adds write protection and byte order. Below bootstrapEnd, words
/// are big-endian and texts are bytes. All other words are little-endian. Lengths are multiples of 4 up to
/// largestMemory.
class DeviceMemory {
public:
    DeviceMemory(SimulatedCamera& shown, ChannelRegisters& ofChannel, StreamChannel& ofStream)
        : camera(shown),
          channel(ofChannel),
          stream(ofStream) {}

    /// Fills the bytes.
    [[nodiscard]] Status Read(std::uint32_t address, std::span<std::uint8_t> bytes);
    /// Writes all or nothing. Must not be used for the privilege.
    /// @param writer the address of the application that writes
    [[nodiscard]] Status Write(std::uint32_t address, std::span<const std::uint8_t> bytes, std::uint32_t writer);

    // Single registers, as numbers, independent of the byte order in memory.
    [[nodiscard]] Status ReadWord(std::uint32_t address, std::uint32_t& value);
    [[nodiscard]] Status WriteWord(std::uint32_t address, std::uint32_t value, std::uint32_t writer);

private:
    [[nodiscard]] Status CheckAddress(std::uint32_t address, std::size_t length) const;
    [[nodiscard]] bool IsProtected(std::uint32_t address, std::size_t length) const;
    /// Calls @p visit with each bootstrap register that the bytes are written to, and its word.
    template <typename Visit>
    void ForEachWord(std::uint32_t address, std::span<const std::uint8_t> bytes, const Visit& visit) const;
    /// Swaps the words whose byte order differs between camera and wire.
    void SwapBytes(std::uint32_t address, std::span<std::uint8_t> bytes) const;

    SimulatedCamera& camera;
    ChannelRegisters& channel;
    StreamChannel& stream;
};

} // namespace Simulation::GigEVision
