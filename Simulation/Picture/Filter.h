#pragma once

#include <cstddef>
#include <cstdint>

namespace Simulation::Picture {

/// The channel that a sensor with colour filters has at a place: green and red, below them blue and green.
[[nodiscard]] constexpr std::size_t FilterAt(std::uint64_t column, std::uint64_t row) {
    constexpr std::size_t filters[2][2] = {{1, 0}, {2, 1}};
    return filters[row % 2][column % 2];
}

} // namespace Simulation::Picture
