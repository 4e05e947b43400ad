#pragma once

#include "Simulation/Picture/Scene.h"
#include "Simulation/Picture/Settings.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Simulation::Picture {

/// The scene as a sensor sees it and reads it out: the tones of each pixel, one of a monochrome sensor, and those of
/// red, green and blue otherwise. Light, noise and the mark are not in it, so that it is made anew only when another
/// part of the sensor is read out.
class View {
public:
    void Update(const Settings& settings);

    /// The tones of a line of what is read out.
    /// @return valid until the next call
    [[nodiscard]] const std::uint8_t* Line(std::uint32_t y, const Mark& mark);
    [[nodiscard]] std::size_t Channels() const { return readout.color ? 3 : 1; }
    [[nodiscard]] std::uint32_t MeanLight() const { return meanLight; }

private:
    void MakeLine(const Scene& scene, std::uint32_t y, std::uint8_t* line) const;
    void MakeBinnedLine(const Scene& scene, std::uint32_t y, std::uint8_t* line);

    Readout readout{};
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t meanLight = 1;
    std::vector<std::int64_t> columns; ///< where each column of pixels is in the scene
    std::vector<std::int64_t> lines;   ///< and each line
    std::vector<std::uint32_t> light;  ///< of the binned line that is made
    std::vector<std::uint8_t> tones;   ///< of all lines
    std::vector<std::uint8_t> marked;  ///< the line that the mark is in
};

} // namespace Simulation::Picture
