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

// The level of an image is the illumination, times the exposure time over 20 ms, times the gain factor, 1 at gain 0 and
// 5 at gain 511. The nominal scene gives 100; "autoexposurelevel" is the target of the automatic modes.
constexpr std::uint64_t nominalExposure = 20000; // microseconds
constexpr std::uint64_t nominalLevel = 100;      // of 255
constexpr std::uint64_t unityGain = 256;
[[nodiscard]] constexpr std::uint64_t GainFactor(std::uint64_t gain) { return unityGain + 2 * gain; }

/// The balance that makes white white in the light of that source, in this world.
[[nodiscard]] Words WhiteBalanceOf(std::uint32_t lightSource, const World& world);

/// Converts a time, held as base and counter, to microseconds.
[[nodiscard]] std::uint64_t MicrosecondsOf(const Words& time);
/// Updates readout time and frame duration.
void UpdateTiming(RegisterSpace& space);

[[nodiscard]] std::vector<Register> OrvikRegisters(const OrvikModel& model);
void AddOrvikGeometry(SimulatedCamera& camera, const OrvikModel& model);
void AddOrvikTiming(SimulatedCamera& camera);
void AddOrvikBehaviour(SimulatedCamera& camera, const OrvikModel& model, const World& world);

} // namespace Simulation
