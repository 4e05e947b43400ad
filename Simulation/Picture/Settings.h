#pragma once

#include "Simulation/RegisterSpace.h"

#include <array>
#include <cstdint>

namespace Simulation::Picture {

/// What takes the place of what the sensor sees.
enum class Pattern : std::uint8_t {
    None,
    Black,
    White,
    Gray,
    RampRight, ///< from black to white
    RampDown,
    Checkers,
    Bars, ///< of colours
};

/// Which part of the sensor is read out, and how.
struct Readout {
    std::uint32_t sensorWidth = 0; ///< in pixels
    std::uint32_t sensorHeight = 0;
    std::uint32_t offsetX = 0; ///< in binned pixels
    std::uint32_t offsetY = 0;
    std::uint32_t binningX = 1;
    std::uint32_t binningY = 1;
    bool color = false; ///< of a sensor with colour filters

    bool operator==(const Readout&) const = default;
};

/// What the registers of a camera say about its pictures, in the same terms for both families.
struct Settings {
    std::uint32_t pixelFormat = 0; ///< of the GigE Vision standard
    std::uint32_t width = 0;       ///< of the frame, in pixels
    std::uint32_t height = 0;
    Readout readout{};
    bool flipX = false;
    bool flipY = false;
    std::uint64_t level = 0; ///< the mean of the nominal scene, in 1/256 of a step of 14 bits
    std::uint32_t gain = 0;  ///< 256: none; noise grows with it, the level contains it
    std::uint32_t lightSource = 0;
    std::array<std::uint32_t, 3> balance{128, 128, 128}; ///< gains of red, green, blue, in 1/128
    std::uint32_t saturation = 128;                      ///< 128: as it is
    std::array<Pattern, 2> patterns{};                   ///< of the left and the right half

    bool operator==(const Settings&) const = default;
};

/// The settings that the registers hold now.
[[nodiscard]] Settings SettingsOf(const RegisterSpace& space);

} // namespace Simulation::Picture
