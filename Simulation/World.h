#pragma once

#include <cstdint>

namespace Simulation {

/// What surrounds a camera and is not written in any of its registers: decided by the seed, the same every time.
class World {
public:
    explicit World(std::uint64_t seedOfWorld) : seed(seedOfWorld) {}

    /// A number from -range to +range; equal for equal whats and whens. A world of seed 0 gives what varies with time
    /// alone, so that its cameras are those of the tables.
    [[nodiscard]] std::int32_t Deviation(std::uint32_t what, std::int32_t range) const {
        return seed == 0 ? 0 : Noise(what, 0, range);
    }
    [[nodiscard]] std::int32_t Noise(std::uint32_t what, std::uint64_t when, std::int32_t range) const {
        const std::uint64_t span = 2 * static_cast<std::uint64_t>(range) + 1;
        return static_cast<std::int32_t>(Mix(Mix(seed ^ std::uint64_t{what} << 32) + when) % span) - range;
    }

    /// How bright the scene is, in percent of what cameras are adjusted for.
    [[nodiscard]] std::uint32_t Light() const { return static_cast<std::uint32_t>(100 + Deviation(1, 30)); }

private:
    /// Any bit of the number decides about any bit of the result.
    static std::uint64_t Mix(std::uint64_t number) {
        number += 0x9E3779B97F4A7C15U;
        number = (number ^ number >> 30) * 0xBF58476D1CE4E5B9U;
        number = (number ^ number >> 27) * 0x94D049BB133111EBU;
        return number ^ number >> 31;
    }

    std::uint64_t seed;
};

} // namespace Simulation
