#pragma once

#include "SimulatedCamera.h"

#include <memory>
#include <string_view>

namespace Simulation {

/// A simulated camera as it is after being switched on, or null when no model of that name is simulated.
[[nodiscard]] std::unique_ptr<SimulatedCamera> MakeCamera(std::string_view name);

} // namespace Simulation
