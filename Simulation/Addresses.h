#pragma once

#include <cstddef>
#include <cstdint>

/// The address space of a camera: bootstrap registers, vendor registers, functions.
namespace Simulation {

constexpr std::size_t discoverySize = 0xF8;         ///< size of the bootstrap registers in a discovery acknowledge
constexpr std::uint32_t bootstrapEnd = 0x00010000;  ///< end of the addresses that the standard defines
constexpr std::uint32_t firstFunction = 0x01000000; ///< from here on, each function has functionSize addresses
constexpr std::uint32_t functionSize = 0x00010000;
constexpr std::uint32_t firstInternal = 0xE0000000; ///< from here on: internal state, inaccessible to hosts

/// The first address of the function that contains the address.
[[nodiscard]] constexpr std::uint32_t FunctionOf(std::uint32_t address) { return address & ~(functionSize - 1); }

} // namespace Simulation
