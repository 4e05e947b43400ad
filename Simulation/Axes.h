#pragma once

#include "Simulation/SimulatedCamera.h"

namespace Simulation {

/// Motors behind an indexed register: what is written to it is where a channel shall go, what is read is where it is.
struct Axes {
    const char* position; ///< one word per channel
    const char* target;   ///< the camera's notes, two words per channel: whether it moves, and where to
    const char* moving;   ///< how many channels move
    std::uint32_t speed;  ///< in one step of the camera's time
};

/// A channel that is sent somewhere moves at once as far as it gets in one step.
void AddAxes(SimulatedCamera& camera, const Axes& axes);

} // namespace Simulation
