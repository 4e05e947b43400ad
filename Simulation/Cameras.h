#pragma once

#include "SimulatedCamera.h"

#include <memory>
#include <string_view>

namespace Simulation {

/// A simulated camera of the model as it is after being switched on, or null when no such model is simulated.
[[nodiscard]] std::unique_ptr<SimulatedCamera> MakeCamera(std::string_view model);

} // namespace Simulation
