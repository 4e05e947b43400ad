#pragma once

#include "Simulation/SimulatedCamera.h"
#include "Simulation/World.h"

namespace Simulation {

/// Has the camera's "temperature" drift: it warms up while images are acquired and cools down afterwards, a tenth of a
/// degree in half a second, and what is measured is noisy. "warmth" is the camera's note of it, in tenths of a degree.
void AddTemperature(SimulatedCamera& camera, const World& world);

} // namespace Simulation
