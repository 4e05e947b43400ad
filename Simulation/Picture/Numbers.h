#pragma once

#include <cstdint>

namespace Simulation::Picture {

constexpr std::int32_t fullScale = 16383; ///< of the values that frames are made of

/// Rounded down.
[[nodiscard]] constexpr std::uint64_t SquareRoot(std::uint64_t number) {
    std::uint64_t root = 0;
    for (std::uint64_t bit = std::uint64_t{1} << 31; bit != 0; bit >>= 1) {
        const std::uint64_t greater = root | bit;
        root = greater * greater <= number ? greater : root;
    }
    return root;
}

} // namespace Simulation::Picture
