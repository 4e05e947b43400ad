#pragma once

#include <cstddef>
#include <cstdint>

/// How the address space of a camera is divided: bootstrap registers, registers of the camera's own, functions.
namespace Simulation {

constexpr std::size_t discoverySize = 0xF8;         ///< the bootstrap registers that a discovery acknowledge is made of
constexpr std::uint32_t bootstrapEnd = 0x00010000;  ///< below it the standard rules
constexpr std::uint32_t firstFunction = 0x01000000; ///< from there on each function has functionSize addresses
constexpr std::uint32_t functionSize = 0x00010000;
constexpr std::uint32_t firstInternal =
    0xE0000000; ///< from there on is the camera's internal state, which no host reaches

/// The first address of the function that the address belongs to.
[[nodiscard]] constexpr std::uint32_t FunctionOf(std::uint32_t address) { return address & ~(functionSize - 1); }

} // namespace Simulation
