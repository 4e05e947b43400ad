#pragma once

#include "GigEVision/ChannelRegisters.h"
#include "GigEVision/Gvcp.h"
#include "SimulatedCamera.h"

#include <cstdint>
#include <span>

namespace Simulation::GigEVision {

/// A camera as its control channel shows it: which addresses there are and may be written, and in what order bytes
/// travel. An access lies in one of
///
/// | Addresses             | What is there                                                                           |
/// |-----------------------|-----------------------------------------------------------------------------------------|
/// | 0x00000000-0x0000FFFF | the bootstrap registers; words of them are big-endian, texts are bytes                  |
/// | 0x00010000-0x00FFFFFF | the camera's registers there, words little-endian; what lies between them is invalid    |
/// | 0xGGFF0000-0xGGFFFFFF | the camera's function GGFF: its register, words little-endian, and zeros behind it      |
///
/// and all else is invalid, also the camera's own notes from 0xE0000000 on. Lengths are multiples of 4 up to
/// largestMemory.
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
    [[nodiscard]] bool IsClaimed(std::uint32_t address) const;
    [[nodiscard]] bool IsProtected(std::uint32_t address, std::size_t length) const;
    /// Exchanges what the camera and the wire have in different byte order.
    void ExchangeWords(std::uint32_t address, std::span<std::uint8_t> bytes) const;
    [[nodiscard]] Bytes FromCamera(std::uint32_t address, std::size_t length);
    void ToCamera(std::uint32_t address, std::span<const std::uint8_t> bytes);
    /// The indexed register in whose function the address lies, or null.
    [[nodiscard]] const Register* IndexedAround(std::uint32_t address) const;

    SimulatedCamera& camera;
    ChannelRegisters& channel;
};

} // namespace Simulation::GigEVision
