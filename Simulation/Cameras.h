#pragma once

#include "Simulation/SimulatedCamera.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Simulation {

/// A simulated camera, just switched on, or null for an unknown model.
/// @param seed determines illumination and colour of the scene, noise of measurements, and where defect pixels are
///             detected; never the identity. The same seed and the same accesses give the same values. 0 is the nominal
///             environment.
[[nodiscard]] std::unique_ptr<SimulatedCamera> MakeCamera(std::string_view name, std::uint64_t seed = 0);

[[nodiscard]] std::vector<std::string> ModelNames();

} // namespace Simulation
