#pragma once

#include "Simulation/Register.h"
#include "Simulation/SimulatedCamera.h"
#include "Simulation/World.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulation {

/// The differences between the models of the M2VX family.
struct M2VXModel {
    std::string name;
    std::uint32_t number; ///< function-model identifier, part of the serial number
};

/// The level of an image in percent of the full scale is the illumination, times the exposure time over that of a
/// frame, times a fourth of the gain with this added to it: so the picture is bright enough without gain, and automatic
/// gain reaches its power-up level in every world.
constexpr std::uint32_t gainOffset = 92;
constexpr std::uint32_t frameTime = 33; ///< milliseconds; so long is exposed unless the exposure time is the host's

constexpr std::uint32_t imageSize = 1024; ///< in pixels, both ways

/// The defect pixels that were found before the camera left the factory: column, line, replacement.
constexpr std::uint32_t factoryDefects[][3] = {{12, 700, 1}, {13, 700, 1}, {512, 44, 2}, {512, 45, 2}};

[[nodiscard]] std::string SerialNumber(const M2VXModel& model);
[[nodiscard]] std::vector<Register> M2VXRegisters(const M2VXModel& model);
void AddM2VXBehaviour(SimulatedCamera& camera, const World& world);

} // namespace Simulation
