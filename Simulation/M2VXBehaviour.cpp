#include "M2VX.h"

namespace Simulation {

namespace {

/// Without an exposure time of its own, a frame is exposed as long as it lasts.
void FollowExposureMode(RegisterSpace& space, const RegisterSpace::Change&) {
    const std::uint32_t resetRestart = 3;
    if (space.Get("exposuremode")[0] != resetRestart) {
        space.Set("exposure", {33});
    }
}

/// The automatic gain has found what its level asks for.
void FollowAutomaticGain(RegisterSpace& space, const RegisterSpace::Change&) {
    if (space.Get("agc")[0] != 0) {
        space.Set("gain", {4 * space.Get("automaticlevel")[0]});
    }
}

/// The search finds one pair more than there was.
void FindDefectPixels(RegisterSpace& space, const RegisterSpace::Change&) {
    const std::uint32_t used = space.Get("defectpixelcount")[0];
    if (2 * used < space.Count("defectpixel")) {
        space.Set("defectpixel", {300 + used, 301, 1}, 2 * used);
        space.Set("defectpixel", {300 + used, 302, 1}, 2 * used + 1);
        space.Set("defectpixelcount", {used + 1});
    }
}

} // namespace

void AddM2VXBehaviour(SimulatedCamera& camera, const World&) {
    camera.AfterWrite("exposuremode", FollowExposureMode);
    camera.AfterWrite("agc", FollowAutomaticGain);
    camera.AfterWrite("automaticlevel", FollowAutomaticGain);
    camera.AfterWrite("autocompensation", FindDefectPixels);
}

} // namespace Simulation
