#pragma once

#include "Simulation/Picture/Settings.h"
#include "Simulation/World.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Simulation::Picture {

/// A pixel that is white or black, whatever light there is.
struct DefectPixel {
    std::uint32_t column, line;
    bool isWhite;
};

/// The defect pixels of a sensor of that size, some eight pairs in a million of pixels.
[[nodiscard]] std::vector<DefectPixel> DefectPixelsOf(const World& world, std::uint32_t width, std::uint32_t height);

/// The defect pixels of what is read out, and those that the camera replaces or shows.
class Defects {
public:
    void Update(const Settings& settings, const World& world);
    /// @param line y of what is read out, from the sensor
    void Apply(std::uint32_t y, std::vector<std::uint16_t>& line) const;

private:
    enum class Action : std::uint8_t { Whiten, Blacken, TakeLeft, TakeMean, Show };
    struct Entry {
        std::uint32_t y, x;
        std::size_t place; ///< in the line
        Action action;
    };

    void AddListed(const Settings& settings);
    void Add(const Settings& settings, std::uint32_t column, std::uint32_t line, Action action);
    void Act(const Entry& entry, std::vector<std::uint16_t>& line) const;

    std::vector<Entry> entries; ///< in the order of lines
    std::int32_t binned = 1;    ///< pixels of the sensor, in one that is read out
    std::size_t channels = 1;   ///< of the line
};

} // namespace Simulation::Picture
