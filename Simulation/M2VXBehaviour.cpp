#include "Simulation/AutomaticMode.h"
#include "Simulation/Axes.h"
#include "Simulation/M2VX.h"
#include "Simulation/Temperature.h"

#include <SDK4/Enums.h>

#include <algorithm>

namespace Simulation {

namespace {

void UpdateFrameDuration(RegisterSpace& space) {
    space.Set("frameduration", {std::max(33333U, 1000 * space.Get("exposure")[0])});
}

/// Only mode reset-restart has a settable exposure time. Otherwise it is the frame time.
void UpdateExposureTime(RegisterSpace& space) {
    const bool isSettable = space.Get("exposuremode")[0] == SDK4_EXPOSUREMODE_RESETRESTART;
    space.Set("exposure", isSettable ? space.Requested("exposure") : Words{frameTime});
    UpdateFrameDuration(space);
}

void AddExposure(SimulatedCamera& camera) {
    camera.AfterWrite("exposuremode", UpdateExposureTime);
    camera.AfterWrite("exposure", UpdateFrameDuration);
    camera.Derive(UpdateFrameDuration);
}

/// An automatic mode of this family. With its stop mode on, it holds the value after it has converged, until one of its
/// settings is written.
struct ControlLoop {
    const char* mode;
    const char* stopMode;
    const char* converging; ///< internal state: 0 when the loop has converged
    const char* controlled;
    std::function<std::uint32_t(const RegisterSpace&, bool runs)> target;
};

void Iterate(SimulatedCamera& camera, RegisterSpace& space, const ControlLoop& loop) {
    const bool runs = camera.Runs(loop.mode);
    if (space.Get(loop.converging)[0] == 0 && space.Get(loop.stopMode)[0] != 0) {
        return;
    }
    const std::uint32_t value = space.Get(loop.controlled)[0];
    const std::uint32_t target = loop.target(space, runs);
    space.Set(loop.controlled, {Approach(value, target)});
    space.Set(loop.converging, {value == target ? 0U : 1U});
}

void AddControlLoop(SimulatedCamera& camera, const ControlLoop& loop, const std::vector<const char*>& settings) {
    camera.DeclareAutomatic(loop.mode);
    camera.EachStep([&camera, loop](RegisterSpace& space, auto) { Iterate(camera, space, loop); });
    camera.Derive([loop](RegisterSpace& space) { space.Set(loop.converging, {1}); });
    for (const char* setting : settings) {
        camera.AfterWrite(setting, [&camera, loop](RegisterSpace& space) {
            space.Set(loop.converging, {1});
            Iterate(camera, space, loop);
        });
    }
}

/// The sensor is linear: the gain for a level follows from illumination and exposure time.
std::uint32_t GainFor(const RegisterSpace& space, std::uint32_t illumination) {
    const std::uint32_t levelOfModeOne = 40;
    const std::uint32_t level = space.Get("agc")[0] == 2 ? space.Get("automaticlevel")[0] : levelOfModeOne;
    const std::uint32_t exposure = std::max(space.Get("exposure")[0], 1U);
    const std::uint32_t needed = 4 * level * 100 * frameTime / (illumination * exposure);
    return std::clamp(needed, gainOffset, gainOffset + 568) - gainOffset;
}

void AddAutomatics(SimulatedCamera& camera, std::uint32_t illumination) {
    // Switching it on applies the gain that the last image requires. Then it converges step by step.
    camera.AfterWrite("agc", [&camera, illumination](RegisterSpace& space) {
        if (camera.Runs("agc")) {
            space.Set("gain", {GainFor(space, illumination)});
        }
    });
    AddControlLoop(camera,
                   {"agc", "autogainstopmode", "gain searched", "gain",
                    [illumination](const RegisterSpace& space, bool runs) {
                        return runs ? GainFor(space, illumination) : space.Get("gain")[0];
                    }},
                   {"agc", "automaticlevel", "gain"});

    // The controlled level lies between the thresholds. Otherwise it follows from the scene.
    const std::uint32_t free = 301 * illumination / 100;
    camera.Registers().Set("abcxrlevel", {free});
    AddControlLoop(camera,
                   {"abc", "abcstopmode", "level searched", "abcxrlevel",
                    [free](const RegisterSpace& space, bool runs) {
                        return runs ? (space.Get("abcthreshold", 0)[0] + space.Get("abcthreshold", 1)[0]) / 2 : free;
                    }},
                   {"abc", "abcthreshold"});
}

/// Counts the pairs up to the last one that replaces a pixel.
void CountDefectPixels(RegisterSpace& space) {
    std::uint32_t entries = space.Count("defectpixel");
    while (entries > 0 && space.Get("defectpixel", entries - 1)[2] == 0) {
        --entries;
    }
    space.Set("defectpixelcount", {(entries + 1) / 2});
}

/// Each detection finds one more pair.
void DetectDefectPixels(RegisterSpace& space, const World& world) {
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
    camera.AfterWrite("defectpixel", CountDefectPixels);
    camera.AfterWrite("autocompensation", [world](RegisterSpace& space) { DetectDefectPixels(space, world); });
}

/// The measure window measures the scene, with noise.
void AddMeasuring(SimulatedCamera& camera, const World& world) {
    camera.EachStep([world](RegisterSpace& space, std::uint64_t step) {
        const auto noise = static_cast<std::uint32_t>(world.Noise(Stream::MeasureNoise, step, 1));
        space.Set("measurevalue", {37 * world.Illumination() / 100 + noise});
    });
}

} // namespace

void AddM2VXBehaviour(SimulatedCamera& camera, const World& world) {
    AddExposure(camera);
    AddAutomatics(camera, world.Illumination());
    AddDefectPixels(camera, world);
    AddMeasuring(camera, world);
    AddAxes(camera, {"motorcontrol", "motor target", "motors moving", 8192});
    AddAxes(camera, {"lenscontrol", "lens target", "lenses moving", 1024});
    AddTemperature(camera, world);
    camera.LockWhileAcquiring("loadsettings");
    camera.LockWhileAcquiring("acquisitionmode");
}

} // namespace Simulation
