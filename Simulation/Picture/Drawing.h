#pragma once

#include "Simulation/Picture/Settings.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace Simulation::Picture {

/// Draws what is drawn on a line of the frame.
/// @param line of values of 14 bits: of each pixel one, or three for red, green and blue
void DrawLine(const DrawingSettings& drawing, std::int64_t y, std::size_t channels, std::span<std::uint16_t> line);

} // namespace Simulation::Picture
