#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <unordered_map>

namespace Simulation {

/// The whole 32-bit address space as memory: zero until it is written, and only what is written takes room.
class Memory {
public:
    void Read(std::uint32_t address, std::span<std::uint8_t> bytes) const;
    void Write(std::uint32_t address, std::span<const std::uint8_t> bytes);

private:
    static constexpr std::uint32_t pageSize = 1024;
    using Page = std::array<std::uint8_t, pageSize>;

    std::unordered_map<std::uint32_t, Page> pages; ///< by address / pageSize
};

} // namespace Simulation
