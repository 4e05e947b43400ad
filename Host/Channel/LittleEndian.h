#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Host {

// Numbers as cameras keep them in their memory: the low byte first, whatever the order of this machine.

template <std::size_t Size> std::uint64_t FromLittleEndian(const std::array<std::uint8_t, Size>& bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < Size; ++i) {
        value |= std::uint64_t{bytes[i]} << 8 * i;
    }
    return value;
}

inline std::array<std::uint8_t, 8> ToLittleEndian(std::uint64_t value) {
    std::array<std::uint8_t, 8> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(value >> 8 * i);
    }
    return bytes;
}

} // namespace Host
