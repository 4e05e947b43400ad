#pragma once

#include "Simulation/Picture/Numbers.h"
#include "Simulation/Picture/Settings.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace Simulation::Picture {

/// Draws a pattern on frames of one size, in values of 14 bits.
class PatternDrawer {
public:
    using Values = std::array<std::uint16_t, 3>; ///< of red, green and blue

    PatternDrawer(std::uint32_t frameWidth, std::uint32_t frameHeight) : width(frameWidth), height(frameHeight) {}

    [[nodiscard]] Values At(Pattern pattern, std::uint32_t x, std::uint32_t y) const {
        switch (pattern) {
        case Pattern::White:
            return Gray(white);
        case Pattern::Gray:
            return Gray(8192);
        case Pattern::RampRight:
            return Gray(Ramp(x, width));
        case Pattern::RampDown:
            return Gray(Ramp(y, height));
        case Pattern::Checkers:
            return Gray((x / checkerSize + y / checkerSize) % 2 == 0 ? white : 0U);
        case Pattern::Bars:
            return Bar(x * 8 / width);
        case Pattern::None:
        case Pattern::Black:
            break;
        }
        return Gray(0);
    }

private:
    static constexpr std::uint32_t white = fullScale;
    static constexpr std::uint32_t checkerSize = 64;

    [[nodiscard]] static Values Gray(std::uint32_t value) {
        const auto gray = static_cast<std::uint16_t>(value);
        return {gray, gray, gray};
    }
    [[nodiscard]] static std::uint32_t Ramp(std::uint32_t place, std::uint32_t size) {
        return std::min(place * white / std::max(size - 1, 1U), white);
    }
    /// White, yellow, cyan, green, magenta, red, blue, black: each darker than the one before.
    [[nodiscard]] static Values Bar(std::uint32_t bar) {
        const auto value = [bar](std::uint32_t bit) {
            return (bar & bit) == 0 ? std::uint16_t{white} : std::uint16_t{0};
        };
        return {value(2), value(4), value(1)};
    }

    std::uint32_t width;
    std::uint32_t height;
};

} // namespace Simulation::Picture
