#pragma once

#include "Register.h"
#include "SimulatedCamera.h"
#include "World.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulation {

/// What tells the models of the Orvik family apart.
struct OrvikModel {
    std::string name;
    std::uint32_t number; ///< part of the function-model identifier and of the serial number
    std::uint32_t width;  ///< of the sensor, in pixels
    std::uint32_t height;
    bool color;
    bool memory;    ///< has image memory
    bool histogram; ///< can equalise histograms
};

[[nodiscard]] std::vector<Register> OrvikRegisters(const OrvikModel& model);
void AddOrvikBehaviour(SimulatedCamera& camera, const OrvikModel& model, const World& world);

} // namespace Simulation
