#pragma once

#include "Simulation/Register.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace Simulation::Picture {

/// Codes a line of values of 14 bits.
/// @param values of each pixel one, or three for red, green and blue
/// @param line which one of the frame
/// @param bytes of the whole frame
void CodeLine(std::uint32_t pixelFormat, std::span<const std::uint16_t> values, std::size_t channels,
              std::uint32_t line, Bytes& bytes);

} // namespace Simulation::Picture
