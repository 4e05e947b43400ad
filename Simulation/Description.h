#pragma once

#include "Simulation/M2VX.h"
#include "Simulation/Orvik.h"

#include <cstdint>
#include <string>

namespace Simulation {

/// The address of the description in the camera's memory.
constexpr std::uint32_t descriptionAddress = 0x00010000;

/// The camera's GenICam description: Width, Height, Gain and ExposureTime (microseconds) with their registers. Made
/// from the family's file in the folder Descriptions.
[[nodiscard]] std::string Description(const OrvikModel& model);
[[nodiscard]] std::string Description(const M2VXModel& model);

} // namespace Simulation
