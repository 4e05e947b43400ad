#pragma once

#include "Simulation/M2VX.h"
#include "Simulation/Orvik.h"

#include <cstdint>
#include <string>

namespace Simulation {

/// The address of the description in the camera's memory.
constexpr std::uint32_t descriptionAddress = 0x00010000;

/// The camera's GenICam description: the features of the standard, from the files in the folder Descriptions (that of
/// the family, and what both have), and the functions of the camera, from the tables of features and registers.
[[nodiscard]] std::string Description(const OrvikModel& model);
[[nodiscard]] std::string Description(const M2VXModel& model);

} // namespace Simulation
