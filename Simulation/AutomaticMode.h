#pragma once

#include "Simulation/SimulatedCamera.h"

#include <functional>

namespace Simulation {

/// The word, moved half of the way to the target, and by one at least.
[[nodiscard]] std::uint32_t Approach(std::uint32_t word, std::uint32_t target);

/// An automatic mode: while its register is not 0, the camera moves the controlled register towards a target, half of
/// the way in each step of its time.
struct AutomaticMode {
    const char* mode;
    const char* controlled;
    std::function<Words(const RegisterSpace&)> target;
    std::function<void(RegisterSpace&)> update = [](RegisterSpace&) {}; ///< of what depends on the controlled register
};

/// Adds the mode to the camera. What a host writes to the controlled register meanwhile, the mode goes on from.
void AddAutomaticMode(SimulatedCamera& camera, const AutomaticMode& automatic);

} // namespace Simulation
