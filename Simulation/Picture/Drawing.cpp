#include "Simulation/Picture/Drawing.h"

#include "Simulation/Picture/Numbers.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Simulation::Picture {

namespace {

/// A line of pixels that is drawn on.
struct Canvas {
    std::span<std::uint16_t> values;
    std::size_t channels;

    [[nodiscard]] std::int64_t Width() const { return static_cast<std::int64_t>(values.size() / channels); }

    /// White, black, red, green, blue, yellow, cyan, magenta; any other code is white. Without colours their gray.
    void Paint(std::int64_t x, std::uint32_t code) const {
        const std::uint32_t lit[] = {7, 0, 4, 2, 1, 6, 3, 5}; // red, green, blue
        const std::uint32_t color = lit[code < std::size(lit) ? code : 0];
        const std::array<std::uint32_t, 3> weights{77, 150, 29};
        std::uint32_t gray = 0;
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const bool isLit = (color >> (2 - channel) & 1) != 0;
            gray += isLit ? weights.at(channel) : 0;
            if (channels == 3) {
                values[3 * static_cast<std::size_t>(x) + channel] = isLit ? std::uint16_t{fullScale} : std::uint16_t{0};
            }
        }
        if (channels == 1) {
            values[static_cast<std::size_t>(x)] = static_cast<std::uint16_t>(gray * fullScale >> 8);
        }
    }
};

void DrawBox(const Box& box, std::int64_t y, const Canvas& canvas) {
    if (y < box.top || y > box.bottom) {
        return;
    }
    for (std::int64_t x = std::max<std::int64_t>(box.left, 0); x <= std::min(box.right, canvas.Width() - 1); ++x) {
        canvas.Paint(x, box.color);
    }
}

void DrawRing(const Ring& ring, std::int64_t y, const Canvas& canvas) {
    Disc inside = ring.disc;
    inside.across = std::max<std::int64_t>(ring.disc.across - ring.stroke, 0);
    inside.down = std::max<std::int64_t>(ring.disc.down - ring.stroke, 0);
    for (std::int64_t x = 0; x < canvas.Width(); ++x) {
        if (ring.disc.Contains(x, y) && !inside.Contains(x, y)) {
            canvas.Paint(x, ring.color);
        }
    }
}

void Blank(const Disc& disc, std::int64_t y, const Canvas& canvas) {
    for (std::int64_t x = 0; x < canvas.Width(); ++x) {
        if (!disc.Contains(x, y)) {
            canvas.Paint(x, 1);
        }
    }
}

} // namespace

void DrawLine(const DrawingSettings& drawing, std::int64_t y, std::size_t channels, std::span<std::uint16_t> line) {
    const Canvas canvas{line, channels};
    if (drawing.blanked) {
        Blank(*drawing.blanked, y, canvas);
    }
    for (const Box& box : drawing.boxes) {
        DrawBox(box, y, canvas);
    }
    if (drawing.ring) {
        DrawRing(*drawing.ring, y, canvas);
    }
}

} // namespace Simulation::Picture
