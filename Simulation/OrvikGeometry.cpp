// Readout area, binning, and the positions within the image, all in binned pixels.
//
// Each register keeps its requested value, the readout area in sensor pixels, and holds the part of it that fits the
// image. So undoing a change of binning or area restores all values.

#include "Simulation/Orvik.h"

#include <SDK4/Enums.h>

#include <algorithm>

namespace Simulation {

namespace {

/// A camera with a fault may hold any factors.
Words BinningOf(const RegisterSpace& space) {
    const Words binning = space.Get("binning");
    return {std::clamp(binning[0], 1U, 8U), std::clamp(binning[1], 1U, 8U)};
}

/// Clamps the area to its limits and to the minimum size.
Words ClampArea(const RegisterSpace& space, Words area) {
    const Words min = space.Get("readoutarealimits", SDK4_ROADOMAIN_MIN);
    const Words max = space.Get("readoutarealimits", SDK4_ROADOMAIN_MAX);
    for (std::size_t start = 0, end = 2; start < 2; ++start, ++end) {
        area[start] = std::min(std::max(area[start], min[start]), max[start]);
        area[end] = std::min(std::max(area[end], area[start] + smallestArea - 1), max[end]);
    }
    return area;
}

Words InSensorPixels(const Words& area, const Words& binning) {
    return {area[0] * binning[0], area[1] * binning[1], (area[2] + 1) * binning[0] - 1, (area[3] + 1) * binning[1] - 1};
}

Words InBinnedPixels(const Words& area, const Words& binning) {
    return {area[0] / binning[0], area[1] / binning[1], (area[2] + 1) / binning[0] - 1, (area[3] + 1) / binning[1] - 1};
}

void ClipOverlay(RegisterSpace& space, std::uint32_t line) {
    const Words size = space.Get("imagesize");
    const Words& requested = space.Requested("overlayposition", line);
    space.Set("overlayposition", {std::min(requested[0], size[0] - 1), std::min(requested[1], size[1] - 1)}, line);
}

void ClipMeasureWindow(RegisterSpace& space, std::uint32_t window) {
    const Words size = space.Get("imagesize");
    Words area = space.Requested("measurewindow", window);
    for (std::size_t start = 0, end = 2; start < 2; ++start, ++end) {
        area[start] = std::min(area[start], size[start] - 1);
        area[end] = std::min(std::max(area[end], area[start]), size[start] - 1);
    }
    space.Set("measurewindow", area, window);
}

void ApplyArea(RegisterSpace& space, const Words& area) {
    space.Set("readoutarea", area);
    space.Set("offset", {area[0], area[1]});
    space.Set("readoutarealimits", area, SDK4_ROADOMAIN_ACTIVE);
    space.Set("imagesize", {area[2] - area[0] + 1, area[3] - area[1] + 1});
    for (std::uint32_t i = 0; i < 2; ++i) {
        ClipOverlay(space, i);
        ClipMeasureWindow(space, i);
    }
}

void UpdateBinning(RegisterSpace& space, const OrvikModel& model) {
    const Words binning = BinningOf(space);
    const std::uint32_t width = model.width / binning[0];
    const std::uint32_t height = model.height / binning[1];
    space.Set("readoutarealimits", {0, 0, smallestArea - 1, smallestArea - 1}, SDK4_ROADOMAIN_MIN);
    space.Set("readoutarealimits", {width - smallestArea, height - smallestArea, width - 1, height - 1},
              SDK4_ROADOMAIN_MAX);
    ApplyArea(space, ClampArea(space, InBinnedPixels(space.Requested("readoutarea"), binning)));
}

void ApplyReadoutArea(RegisterSpace& space) {
    const Words area = ClampArea(space, space.Get("readoutarea"));
    space.SetRequested("readoutarea", InSensorPixels(area, BinningOf(space)));
    ApplyArea(space, area);
}

/// Keeps the size, as GenICam programs expect of an offset.
void MoveArea(RegisterSpace& space) {
    const Words offset = space.Get("offset");
    const Words size = space.Get("imagesize");
    const Words max = space.Get("readoutarealimits", SDK4_ROADOMAIN_MAX);
    const std::uint32_t left = std::min(offset[0], max[2] + 1 - size[0]);
    const std::uint32_t top = std::min(offset[1], max[3] + 1 - size[1]);
    space.Set("readoutarea", {left, top, left + size[0] - 1, top + size[1] - 1});
    ApplyReadoutArea(space);
}

} // namespace

void AddOrvikGeometry(SimulatedCamera& camera, const OrvikModel& model) {
    camera.Derive([model](RegisterSpace& space) { UpdateBinning(space, model); });
    camera.AfterWrite("binning", [model](RegisterSpace& space) { UpdateBinning(space, model); });
    camera.AfterWrite("readoutarea", ApplyReadoutArea);
    camera.AfterWrite("offset", MoveArea);
    camera.AfterWrite("overlayposition", [](auto& space, const auto& change) { ClipOverlay(space, change.index); });
    camera.AfterWrite("measurewindow", [](auto& space, const auto& change) { ClipMeasureWindow(space, change.index); });
    for (const char* name : {"readoutarea", "offset", "binning", "colorcoding"}) {
        camera.LockWhileAcquiring(name);
    }
}

} // namespace Simulation
