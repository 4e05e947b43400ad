#pragma once

#include "Simulation/M2VX.h"
#include "Simulation/Orvik.h"

#include <cstdint>
#include <string>

namespace Simulation {

/// Where the camera's memory holds its description.
constexpr std::uint32_t descriptionAddress = 0x00010000;

/// The camera's GenICam description: tells generic programs of Width, Height, Gain and ExposureTime (microseconds), and
/// of the registers behind them. Made from the file of the family in the folder Descriptions.
[[nodiscard]] std::string Description(const OrvikModel& model);
[[nodiscard]] std::string Description(const M2VXModel& model);

} // namespace Simulation
