#pragma once

#include "Simulation/Picture/Settings.h"

#include <array>
#include <cstdint>

namespace Simulation::Picture {

/// The values of red, green and blue, of 14 bits, that a pattern has at a pixel of a frame of that size.
[[nodiscard]] std::array<std::uint16_t, 3> PatternAt(Pattern pattern, std::uint32_t x, std::uint32_t y,
                                                     std::uint32_t width, std::uint32_t height);

} // namespace Simulation::Picture
