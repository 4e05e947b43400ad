#pragma once

#include "Simulation/SimulatedCamera.h"
#include "Simulation/World.h"

namespace Simulation {

/// Adds drift of the register "temperature": the camera warms up during acquisition and cools down afterwards, by a
/// tenth of a degree in half a second. The measurement is noisy; "warmth" is the temperature without noise, in tenths.
void AddTemperature(SimulatedCamera& camera, const World& world);

} // namespace Simulation
