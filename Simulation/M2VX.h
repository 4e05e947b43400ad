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

[[nodiscard]] std::string SerialNumber(const M2VXModel& model);
[[nodiscard]] std::vector<Register> M2VXRegisters(const M2VXModel& model);
void AddM2VXBehaviour(SimulatedCamera& camera, const World& world);

} // namespace Simulation
