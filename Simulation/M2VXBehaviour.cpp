#include "Simulation/Automatic.h"
#include "Simulation/Axes.h"
#include "Simulation/M2VX.h"
#include "Simulation/Temperature.h"

#include <SDK4/Enums.h>

#include <algorithm>

namespace Simulation {

namespace {

constexpr std::uint32_t frameTime = 33; // milliseconds; so long is exposed unless the exposure time is the host's

void FollowExposure(RegisterSpace& space) {
    space.Set("frameduration", {std::max(33333U, 1000 * space.Get("exposure")[0])});
}

/// Outside of mode reset-restart a frame is exposed as long as it lasts.
void FollowExposureMode(RegisterSpace& space) {
    const bool own = space.Get("exposuremode")[0] == SDK4_EXPOSUREMODE_RESETRESTART;
    space.Set("exposure", own ? space.Requested("exposure") : Words{frameTime});
    FollowExposure(space);
}

void AddExposure(SimulatedCamera& camera) {
    camera.AfterWrite("exposuremode", [](RegisterSpace& space, const auto&) { FollowExposureMode(space); });
    camera.AfterWrite("exposure", [](RegisterSpace& space, const auto&) { FollowExposure(space); });
    camera.Derive(FollowExposure);
}

/// An automatic mode of this family moves a value until it has what it looks for; then its stop mode has it hold still,
/// whatever the scene does, until it is set anew.
struct Search {
    const char* mode;
    const char* stopMode;
    const char* searching; ///< the camera's note
    const char* owned;
    std::function<std::uint32_t(const RegisterSpace&, bool runs)> goal;
};

void Work(SimulatedCamera& camera, RegisterSpace& space, const Search& search) {
    const bool runs = camera.Runs(search.mode);
    if (space.Get(search.searching)[0] == 0 && space.Get(search.stopMode)[0] != 0) {
        return;
    }
    const std::uint32_t value = space.Get(search.owned)[0];
    const std::uint32_t goal = search.goal(space, runs);
    space.Set(search.owned, {Approach(value, goal)});
    space.Set(search.searching, {value == goal ? 0U : 1U});
}

void AddSearch(SimulatedCamera& camera, const Search& search, const std::vector<const char*>& orders) {
    camera.DeclareAutomatic(search.mode);
    camera.EachStep([&camera, search](RegisterSpace& space, auto) { Work(camera, space, search); });
    camera.Derive([search](RegisterSpace& space) { space.Set(search.searching, {1}); });
    for (const char* order : orders) {
        camera.AfterWrite(order, [&camera, search](RegisterSpace& space, const auto&) {
            space.Set(search.searching, {1});
            Work(camera, space, search);
        });
    }
}

/// The sensor is linear: the gain that gives a level follows from light and exposure time.
std::uint32_t GainFor(const RegisterSpace& space, std::uint32_t light) {
    const std::uint32_t levelOfModeOne = 40;
    const std::uint32_t level = space.Get("agc")[0] == 2 ? space.Get("automaticlevel")[0] : levelOfModeOne;
    return std::min(568U, 4 * level * 100 * frameTime / (light * space.Get("exposure")[0]));
}

void AddAutomatics(SimulatedCamera& camera, std::uint32_t light) {
    // Switched on, it goes at once where the last image says; then it follows.
    camera.AfterWrite("agc", [&camera, light](RegisterSpace& space, const auto&) {
        if (camera.Runs("agc")) {
            space.Set("gain", {GainFor(space, light)});
        }
    });
    AddSearch(camera,
              {"agc", "autogainstopmode", "gain searched", "gain",
               [light](const RegisterSpace& space, bool runs) {
                   return runs ? GainFor(space, light) : space.Get("gain")[0];
               }},
              {"agc", "automaticlevel", "gain"});

    // The level lies between the thresholds while it is controlled, and where the scene has it otherwise.
    const std::uint32_t free = 301 * light / 100;
    camera.Registers().Set("abcxrlevel", {free});
    AddSearch(camera,
              {"abc", "abcstopmode", "level searched", "abcxrlevel",
               [free](const RegisterSpace& space, bool runs) {
                   return runs ? (space.Get("abcthreshold", 0)[0] + space.Get("abcthreshold", 1)[0]) / 2 : free;
               }},
              {"abc", "abcthreshold"});
}

/// The pairs up to the last one that replaces a pixel.
void CountDefectPixels(RegisterSpace& space) {
    std::uint32_t entries = space.Count("defectpixel");
    while (entries > 0 && space.Get("defectpixel", entries - 1)[2] == 0) {
        --entries;
    }
    space.Set("defectpixelcount", {(entries + 1) / 2});
}

/// The search finds one pair more than there was.
void FindDefectPixels(RegisterSpace& space, const World& world) {
    const std::uint32_t used = space.Get("defectpixelcount")[0];
    if (2 * used < space.Count("defectpixel")) {
        const std::uint32_t column =
            300 + used + static_cast<std::uint32_t>(world.Deviation(Stream::DefectPixelColumn, 100, used));
        space.Set("defectpixel", {column, 301, 1}, 2 * used);
        space.Set("defectpixel", {column, 302, 1}, 2 * used + 1);
        CountDefectPixels(space);
    }
}

void AddDefectPixels(SimulatedCamera& camera, const World& world) {
    camera.AfterWrite("defectpixel", [](RegisterSpace& space, const auto&) { CountDefectPixels(space); });
    camera.AfterWrite("autocompensation",
                      [world](RegisterSpace& space, const auto&) { FindDefectPixels(space, world); });
}

/// What the measure window sees: the scene, and noise.
void AddMeasuring(SimulatedCamera& camera, const World& world) {
    camera.EachStep([world](RegisterSpace& space, std::uint64_t step) {
        const auto noise = static_cast<std::uint32_t>(world.Noise(Stream::MeasureNoise, step, 1));
        space.Set("measurevalue", {37 * world.Light() / 100 + noise});
    });
}

} // namespace

void AddM2VXBehaviour(SimulatedCamera& camera, const World& world) {
    AddExposure(camera);
    AddAutomatics(camera, world.Light());
    AddDefectPixels(camera, world);
    AddMeasuring(camera, world);
    AddAxes(camera, {"motorcontrol", "motor target", "motors moving", 8192});
    AddAxes(camera, {"lenscontrol", "lens target", "lenses moving", 1024});
    AddTemperature(camera, world);
    camera.LockWhileAcquiring("loadsettings");
    camera.LockWhileAcquiring("acquisitionmode");
}

} // namespace Simulation
