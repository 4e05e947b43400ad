#pragma once

#include "Simulation/SimulatedCamera.h"

namespace Simulation {

/// Motors behind an indexed register: a write sets a channel's target position, a read gives the current one.
struct Axes {
    const char* position; ///< one word per channel
    const char* target;   ///< internal state, two words per channel: whether it moves, and its target position
    const char* moving;   ///< how many channels move
    std::uint32_t speed;  ///< in one step of the camera's time
};

/// A channel whose target is set moves at once by one step.
void AddAxes(SimulatedCamera& camera, const Axes& axes);

} // namespace Simulation
