#pragma once

#include "Simulation/Picture/Settings.h"

#include <cstdint>

namespace Simulation::Picture {

/// The light of a part of the scene, in percent of the mean of the whole.
/// @param part of a square sensor of @p size pixels; what is outside of the sensor does not count
[[nodiscard]] std::uint32_t RelativeLight(const Disc& part, std::uint32_t size);

} // namespace Simulation::Picture
