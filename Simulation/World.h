#pragma once

#include <cstdint>

namespace Simulation {

/// The streams of random numbers. A change of these values changes the environment of every seed.
enum class Stream : std::uint32_t {
    Illumination = 1,
    StartTemperature = 2,
    TemperatureNoise = 3,
    PictureNoise = 5,
    PictureLine = 6, ///< where its noise begins
    DefectPixel = 7,
    WhitePoint = 10, ///< and 11, 12: red, green, blue
};

/// The environment of a camera, determined by the seed: scene, noise, defects of the sensor.
class World {
public:
    explicit World(std::uint64_t seedOfWorld) : seed(seedOfWorld) {}

    /// A number from -range to +range, constant over time. With seed 0 it is 0: the cameras are those of the tables.
    /// @param index is added to @p stream
    [[nodiscard]] std::int32_t Deviation(Stream stream, std::int32_t range, std::uint32_t index = 0) const {
        return seed == 0 ? 0 : Draw(static_cast<std::uint32_t>(stream) + index, 0, range);
    }
    /// A number from -range to +range, determined by the time.
    [[nodiscard]] std::int32_t Noise(Stream stream, std::uint64_t time, std::int32_t range) const {
        return Draw(static_cast<std::uint32_t>(stream), time, range);
    }

    /// Illumination of the scene, in percent of the nominal one.
    [[nodiscard]] std::uint32_t Illumination() const {
        return static_cast<std::uint32_t>(100 + Deviation(Stream::Illumination, 30));
    }

private:
    [[nodiscard]] std::int32_t Draw(std::uint32_t stream, std::uint64_t time, std::int32_t range) const {
        const std::uint64_t span = 2 * static_cast<std::uint64_t>(range) + 1;
        return static_cast<std::int32_t>(Mix(Mix(seed ^ std::uint64_t{stream} << 32) + time) % span) - range;
    }

    /// A hash: any bit of the number affects any bit of the result.
    static std::uint64_t Mix(std::uint64_t number) {
        number += 0x9E3779B97F4A7C15U;
        number = (number ^ number >> 30) * 0xBF58476D1CE4E5B9U;
        number = (number ^ number >> 27) * 0x94D049BB133111EBU;
        return number ^ number >> 31;
    }

    std::uint64_t seed;
};

} // namespace Simulation
