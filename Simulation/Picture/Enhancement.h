#pragma once

#include "Simulation/Picture/Settings.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Simulation::Picture {

/// Makes the channels of coloured pixels more, or less, different from their gray.
void Saturate(std::span<std::uint16_t> line, std::uint32_t saturation);

/// Adds to the values of a quarter of the picture, each in its corner the most.
/// @param corners upper left, upper right, lower left, lower right: what is added there, in 1/256
void CorrectShading(const std::array<std::int32_t, 4>& corners, std::uint32_t y, std::uint32_t height,
                    std::span<std::uint16_t> line);

/// Adds sharpness/64 of what a value differs from the mean of its four neighbours.
void Sharpen(std::uint32_t sharpness, std::size_t channels, std::size_t lineSize, std::vector<std::uint16_t>& image);

/// By values, what becomes of them: brightness and contrast, or histogram equalization, then gamma, then the negative.
/// @param image whose histogram is equalized
[[nodiscard]] std::vector<std::uint16_t> CurveOf(const CurveSettings& settings, std::span<const std::uint16_t> image);

} // namespace Simulation::Picture
