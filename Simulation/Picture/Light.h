#pragma once

#include "Simulation/Picture/Numbers.h"
#include "Simulation/Picture/Settings.h"
#include "Simulation/World.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Simulation::Picture {

/// Numbers that vary about 0, drawn once from the seed and used from another place on in each line of each frame.
class Noise {
public:
    static constexpr std::size_t size = 1U << 16;
    static constexpr std::int32_t peak = 2047; ///< beyond which no number is

    explicit Noise(const World& world);

    /// Makes the numbers that great on the average (root mean square), for lines of that many.
    void Scale(std::uint32_t deviation, std::size_t lineSize);
    /// The numbers of a line of the sensor, from one on.
    [[nodiscard]] const std::int16_t* Line(const World& world, std::uint64_t frame, std::uint64_t line,
                                           std::size_t first) const;

private:
    std::vector<std::int16_t> drawn;
    std::vector<std::int16_t> scaled; ///< with the first ones again at the end, for lines that begin there
};

/// What becomes of the light of a tone: a value of 14 bits of a channel of the picture.
/// Noise that grows with the root of the light is as great for each tone, so it is added to the tone.
class Tables {
public:
    static constexpr std::int32_t steps = 32; ///< of which a tone has so many, for the noise

    Tables();

    void Update(const Settings& settings, const World& world, std::uint32_t meanLight);

    /// The values by tones, from -Noise::peak steps to Noise::peak steps beyond the last tone.
    [[nodiscard]] const std::uint16_t* Of(std::size_t channel) const { return &tones[channel][Noise::peak]; }
    /// The values by those that a pattern puts in place of the sensor's.
    [[nodiscard]] const std::uint16_t* OfPattern(std::size_t channel) const { return values[channel].data(); }
    /// How much noise there is, in steps.
    [[nodiscard]] std::uint32_t Deviation() const { return deviation; }

private:
    std::array<std::vector<std::uint16_t>, 3> tones;
    std::array<std::vector<std::uint16_t>, 3> values;
    std::uint32_t deviation = 0;
};

} // namespace Simulation::Picture
