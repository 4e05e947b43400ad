#pragma once

#include "Common/ErrorExit.h"
#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/StreamSender.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Simulation::GigEVision {

struct Options {
    std::string model{};
    std::uint32_t address = 0;
    std::uint64_t seed = 0;
    std::string state{}; ///< file that keeps the camera between runs; none if empty
    std::optional<std::string> serial{};
    std::optional<std::string> mac{};
    std::vector<std::string> faults{};
    Disturbances disturbances{};
    StreamOptions stream{};
    bool unpaced = false;        ///< ignore the frame duration
    bool anyDestination = false; ///< stream to other addresses than the controller's
    std::string record{};        ///< pcap file; none if empty
};

using Common::UsageError;

/// Parses the arguments. With --help or --version, prints and returns nothing.
/// @throws UsageError
[[nodiscard]] std::optional<Options> ParseCommandLine(int argc, char** argv);

} // namespace Simulation::GigEVision
