#pragma once

#include "Simulation/SimulatedCamera.h"
#include "Simulation/World.h"

namespace Simulation {

/// Has the camera's "temperature" drift: it warms up while images are acquired and cools down afterwards, a tenth of a
/// degree in half a second, and the measurement is noisy. "warmth" is the temperature without noise, in tenths.
void AddTemperature(SimulatedCamera& camera, const World& world);

} // namespace Simulation
