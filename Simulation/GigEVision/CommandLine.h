#pragma once

#include "Common/ErrorExit.h"
#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/StreamSender.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Simulation::GigEVision {

/// What the user asks for.
struct Options {
    std::string model{};
    std::uint32_t address = 0;
    std::uint64_t seed = 0;
    std::string state{}; ///< a file that holds the camera between two runs; none if empty
    std::optional<std::string> serial{};
    std::optional<std::string> mac{};
    std::vector<std::string> faults{}; ///< to be injected into the camera
    Disturbances disturbances{};
    StreamOptions stream{};
    bool unpaced = false;        ///< frames follow each other without regard to the frame duration
    bool anyDestination = false; ///< the stream may go elsewhere than to the controller
    std::string record{};        ///< a file for packets; none if empty
};

using Common::UsageError;

/// Reads the arguments of the program. Nothing when only help was asked for, which is printed then.
/// @throws UsageError
[[nodiscard]] std::optional<Options> ParseCommandLine(int argc, char** argv);

} // namespace Simulation::GigEVision
