#pragma once

#include "Simulation/SimulatedCamera.h"

namespace Simulation {

/// Motors of an indexed register: a write sets a channel's target position, a read returns the current position.
struct Axes {
    const char* position; ///< one word per channel
    const char* target;   ///< internal state, two words per channel: whether it moves, and its target position
    const char* moving;   ///< number of moving channels
    std::uint32_t speed;  ///< per time step
};

/// Setting a target moves the channel by the first step at once.
void AddAxes(SimulatedCamera& camera, const Axes& axes);

} // namespace Simulation
