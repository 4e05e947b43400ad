#pragma once

#include "Simulation/SimulatedCamera.h"

#include <functional>

namespace Simulation {

/// The word, moved halfway to the target, by at least 1.
[[nodiscard]] std::uint32_t Approach(std::uint32_t word, std::uint32_t target);

/// An automatic mode: while its register is not 0, each time step moves the controlled register halfway to the target.
struct AutomaticMode {
    const char* mode;
    const char* controlled;
    std::function<Words(const RegisterSpace&)> target;
    std::function<void(RegisterSpace&)> update = [](RegisterSpace&) {}; ///< updates the dependent registers
};

/// Adds the mode to the camera. If a host writes the controlled register meanwhile, the mode continues from that value.
void AddAutomaticMode(SimulatedCamera& camera, const AutomaticMode& automatic);

} // namespace Simulation
