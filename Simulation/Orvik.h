#pragma once

#include "Simulation/Register.h"
#include "Simulation/SimulatedCamera.h"
#include "Simulation/World.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulation {

/// The differences between the models of the Orvik family.
struct OrvikModel {
    std::string name;
    std::uint32_t number; ///< part of the function-model identifier
    std::uint32_t width;  ///< of the sensor, in pixels
    std::uint32_t height;
    bool color;
    bool memory;    ///< has image memory
    bool histogram; ///< can equalise histograms
};

/// 24 bits: the number and the capabilities of the model.
[[nodiscard]] std::uint32_t FunctionModelId(const OrvikModel& model);
[[nodiscard]] std::string SerialNumber(const OrvikModel& model);

constexpr std::uint32_t smallestArea = 64; ///< minimum width and height of a readout area, in pixels

/// Converts a time, held as base and counter, to microseconds.
[[nodiscard]] std::uint64_t MicrosecondsOf(const Words& time);
/// Updates readout time and frame duration.
void UpdateTiming(RegisterSpace& space);

[[nodiscard]] std::vector<Register> OrvikRegisters(const OrvikModel& model);
void AddOrvikGeometry(SimulatedCamera& camera, const OrvikModel& model);
void AddOrvikTiming(SimulatedCamera& camera);
void AddOrvikBehaviour(SimulatedCamera& camera, const OrvikModel& model, const World& world);

} // namespace Simulation
