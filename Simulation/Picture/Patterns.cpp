#include "Simulation/Picture/Patterns.h"

#include <algorithm>

namespace Simulation::Picture {

namespace {

constexpr std::uint16_t white = 16383;
constexpr std::uint32_t checkerSize = 64;

std::uint16_t Ramp(std::uint32_t place, std::uint32_t size) {
    return static_cast<std::uint16_t>(std::uint64_t{place} * white / std::max(size - 1, 1U));
}

/// White, yellow, cyan, green, magenta, red, blue, black: each darker than the one before.
std::array<std::uint16_t, 3> Bar(std::uint32_t place, std::uint32_t size) {
    const auto bar = static_cast<std::uint32_t>(std::uint64_t{place} * 8 / size);
    const auto value = [bar](std::uint32_t bit) { return (bar & bit) == 0 ? white : std::uint16_t{0}; };
    return {value(2), value(4), value(1)};
}

} // namespace

std::array<std::uint16_t, 3> PatternAt(Pattern pattern, std::uint32_t x, std::uint32_t y, std::uint32_t width,
                                       std::uint32_t height) {
    const auto gray = [](std::uint16_t value) { return std::array{value, value, value}; };
    switch (pattern) {
    case Pattern::White:
        return gray(white);
    case Pattern::Gray:
        return gray(8192);
    case Pattern::RampRight:
        return gray(Ramp(x, width));
    case Pattern::RampDown:
        return gray(Ramp(y, height));
    case Pattern::Checkers:
        return gray((x / checkerSize + y / checkerSize) % 2 == 0 ? white : std::uint16_t{0});
    case Pattern::Bars:
        return Bar(x, width);
    case Pattern::None:
    case Pattern::Black:
        break;
    }
    return gray(0);
}

} // namespace Simulation::Picture
