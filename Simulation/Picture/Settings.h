#pragma once

#include "Simulation/RegisterSpace.h"

#include <cstdint>

namespace Simulation::Picture {

/// What the registers of a camera say about its pictures, in the same terms for both families.
struct Settings {
    std::uint32_t pixelFormat = 0; ///< of the GigE Vision standard
    std::uint32_t width = 0;       ///< of the frame, in pixels
    std::uint32_t height = 0;

    bool operator==(const Settings&) const = default;
};

/// The settings that the registers hold now.
[[nodiscard]] Settings SettingsOf(const RegisterSpace& space);

} // namespace Simulation::Picture
