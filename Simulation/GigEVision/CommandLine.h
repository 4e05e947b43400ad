#pragma once

#include "Simulation/GigEVision/Disturbances.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace Simulation::GigEVision {

/// What the user asks for.
struct Order {
    std::string model{};
    std::uint32_t address = 0;
    std::uint64_t seed = 0;
    std::string state{}; ///< a file that holds the camera between two runs; none if empty
    std::optional<std::string> serial{};
    std::optional<std::string> mac{};
    std::vector<std::string> faults{}; ///< to be planted in the camera
    Disturbances disturbances{};
    std::string record{}; ///< a file for packets; none if empty
};

/// What is wrong with that, in words.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads the arguments of the program. Nothing when only help was asked for, which is printed then.
/// @throws UsageError
[[nodiscard]] std::optional<Order> ParseCommandLine(int argc, char** argv);

} // namespace Simulation::GigEVision
