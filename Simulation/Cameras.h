#pragma once

#include "Simulation/SimulatedCamera.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Simulation {

/// The environment in which a camera is switched on.
struct Options {
    /// Determines illumination and colour of the scene, noise of measurements, and where defect pixels are detected;
    /// never the identity. The same seed and the same accesses give the same values; 0 is the nominal environment.
    std::uint64_t seed = 0;
};

/// A simulated camera as it is after being switched on, or null when no model of that name is simulated.
[[nodiscard]] std::unique_ptr<SimulatedCamera> MakeCamera(std::string_view name, const Options& options = {});

/// The models that are simulated.
[[nodiscard]] std::vector<std::string> ModelNames();

} // namespace Simulation
