#pragma once

#include "Simulation/SimulatedCamera.h"

#include <functional>

namespace Simulation {

/// The word, moved half of the way to the goal, and by one at least.
[[nodiscard]] std::uint32_t Approach(std::uint32_t word, std::uint32_t goal);

/// An automatic mode: while its register is not 0, the camera moves a register that the mode owns towards what the mode
/// asks for, half of the way in each step of its time.
struct Automatic {
    const char* mode;
    const char* owned;
    std::function<Words(const RegisterSpace&)> goal;
    std::function<void(RegisterSpace&)> follow = [](RegisterSpace&) {}; ///< adjusts what depends on the owned register
};

/// Has the camera run the mode. What a host writes to the owned register meanwhile, it moves on from there.
void AddAutomatic(SimulatedCamera& camera, const Automatic& automatic);

} // namespace Simulation
