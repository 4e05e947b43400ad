#include "Simulation/Picture/Shapes.h"

#include <algorithm>

namespace Simulation::Picture {

namespace {

constexpr std::int64_t imageCentre = 512; // of an M2VX camera
constexpr std::int64_t longest = 1 << 14; // beyond all images

/// What a word stands for, whatever an invalid one holds.
std::int64_t Length(std::uint32_t word) { return std::min<std::int64_t>(word, longest); }
std::int64_t Coordinate(std::uint32_t word) {
    return std::clamp<std::int64_t>(static_cast<std::int32_t>(word), -longest, longest);
}

/// The lines of an overlay, around its position: horizontal with style 0, vertical with 1, both with any other.
void AddOverlay(const RegisterSpace& space, std::uint32_t overlay, std::int64_t centre, std::vector<Box>& boxes) {
    if (space.Get("overlayshow", overlay)[0] == 0) {
        return;
    }
    const Words position = space.Get("overlayposition", overlay);
    const Words style = space.Get("overlaystyle", overlay);
    const Words size = space.Get("overlaysize", overlay);
    const std::int64_t x = centre + Coordinate(position[0]);
    const std::int64_t y = centre + Coordinate(position[1]);
    const auto add = [&](std::int64_t width, std::int64_t height) {
        const std::int64_t left = x - width / 2;
        const std::int64_t top = y - height / 2;
        boxes.push_back({left, top, left + width - 1, top + height - 1, style[0]});
    };
    if (style[1] != 1) {
        add(Length(size[1]), Length(size[0]));
    }
    if (style[1] != 0) {
        add(Length(size[0]), Length(size[1]));
    }
}

void AddFrame(const Words& area, std::uint32_t color, std::vector<Box>& boxes) {
    const std::int64_t left = area[0], top = area[1], right = area[2], bottom = area[3];
    boxes.push_back({left, top, right, top, color});
    boxes.push_back({left, bottom, right, bottom, color});
    boxes.push_back({left, top, left, bottom, color});
    boxes.push_back({right, top, right, bottom, color});
}

} // namespace

Disc MeasureDisc(const RegisterSpace& space) {
    const Words window = space.Get("measurewindow"); // radius, width of the line, x, y, stretch of 128
    const std::int64_t radius = Length(window[0]);
    return {imageCentre + Coordinate(window[2]), imageCentre + Coordinate(window[3]), radius,
            std::min(radius * Length(window[4]) / 128, longest)};
}

DrawingSettings OrvikDrawing(const RegisterSpace& space) {
    DrawingSettings drawing;
    for (std::uint32_t i = 0; i < 2; ++i) {
        AddOverlay(space, i, 0, drawing.boxes);
    }
    for (std::uint32_t i = 0; i < 2 && space.Get("measureframeshow")[0] != 0; ++i) {
        AddFrame(space.Get("measurewindow", i), space.Get("measureframecolor")[0], drawing.boxes);
    }
    return drawing;
}

DrawingSettings M2VXDrawing(const RegisterSpace& space) {
    DrawingSettings drawing;
    if (space.Get("circularblankingmode")[0] != 0) {
        const Words position = space.Get("circularblankingposition");
        const std::int64_t radius = Length(space.Get("circularblankingsize")[0]);
        drawing.blanked = {Coordinate(position[0]), Coordinate(position[1]), radius, radius};
    }
    for (std::uint32_t i = 0; i < 3; ++i) {
        AddOverlay(space, i, imageCentre, drawing.boxes);
    }
    if (space.Get("measureframeshow")[0] != 0) {
        drawing.ring = {MeasureDisc(space), Length(space.Get("measurewindow")[1]), space.Get("measureframecolor")[0]};
    }
    return drawing;
}

} // namespace Simulation::Picture
