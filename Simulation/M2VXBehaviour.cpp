#include "Simulation/AutomaticMode.h"
#include "Simulation/Axes.h"
#include "Simulation/M2VX.h"
#include "Simulation/Picture/Defects.h"
#include "Simulation/Picture/Measuring.h"
#include "Simulation/Picture/Shapes.h"
#include "Simulation/Temperature.h"

#include <SDK4/Enums.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <utility>

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
    const std::uint64_t exposure = std::max(space.Get("exposure")[0], 1U);
    const std::uint64_t needed = std::uint64_t{4} * level * 100 * frameTime / (illumination * exposure);
    return static_cast<std::uint32_t>(std::clamp<std::uint64_t>(needed, gainOffset, gainOffset + 568)) - gainOffset;
}

/// Reads the level of the picture in the measure window, in 1/256 of a step of 14 bits.
using LevelReader = std::function<std::uint64_t(const RegisterSpace&)>;

/// Looks at the scene only when the window has changed.
class WindowLevel {
public:
    explicit WindowLevel(std::uint32_t illuminationOfWorld) : illumination(illuminationOfWorld) {}

    std::uint64_t Of(const RegisterSpace& space) {
        const Picture::Disc disc = Picture::MeasureDisc(space);
        if (measured != disc) {
            measured = disc;
            percent = Picture::RelativeLight(disc, imageSize);
        }
        return Picture::M2VXLevel(space) * illumination / 100 * percent / 100;
    }

private:
    std::uint32_t illumination;
    std::optional<Picture::Disc> measured;
    std::uint32_t percent = 0; ///< of the mean of the scene
};

/// A level in steps of so many bits.
std::uint32_t InBits(std::uint64_t level, std::uint32_t bits) {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(level >> (22 - bits), (1U << bits) - 1));
}

void AddAutomatics(SimulatedCamera& camera, std::uint32_t illumination, const LevelReader& level) {
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

    // The controlled level lies between the thresholds. Otherwise it is that of the picture.
    const auto free = [level](const RegisterSpace& space) { return InBits(level(space), 10); };
    camera.Registers().Set("abcxrlevel", {free(camera.Registers())});
    AddControlLoop(camera,
                   {"abc", "abcstopmode", "level searched", "abcxrlevel",
                    [free](const RegisterSpace& space, bool runs) {
                        return runs ? (space.Get("abcthreshold", 0)[0] + space.Get("abcthreshold", 1)[0]) / 2
                                    : free(space);
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

/// Each detection finds one more pair of the sensor's, until the table has all.
void DetectDefectPixels(RegisterSpace& space, const World& world) {
    std::set<std::pair<std::uint32_t, std::uint32_t>> listed;
    const std::uint32_t used = 2 * space.Get("defectpixelcount")[0];
    for (std::uint32_t i = 0; i < used; ++i) {
        const Words pixel = space.Get("defectpixel", i);
        listed.emplace(pixel[0], pixel[1]);
    }
    const auto pixels = Picture::DefectPixelsOf(world, imageSize, imageSize);
    const auto found = std::find_if(pixels.begin(), pixels.end(), [&](const Picture::DefectPixel& pixel) {
        return !listed.contains({pixel.column, pixel.line});
    });
    if (found != pixels.end() && used < space.Count("defectpixel")) {
        const std::uint32_t line = found->isWhite ? found->line : found->line - 1; // the first of a pair is white
        space.Set("defectpixel", {found->column, line, 1}, used);
        space.Set("defectpixel", {found->column, line + 1, 1}, used + 1);
        CountDefectPixels(space);
    }
}

void AddDefectPixels(SimulatedCamera& camera, const World& world) {
    camera.AfterWrite("defectpixel", CountDefectPixels);
    camera.AfterWrite("autocompensation", [world](RegisterSpace& space) { DetectDefectPixels(space, world); });
}

void AddMeasuring(SimulatedCamera& camera, const LevelReader& level) {
    camera.EachStep([level](RegisterSpace& space, auto) { space.Set("measurevalue", {InBits(level(space), 8)}); });
}

} // namespace

void AddM2VXBehaviour(SimulatedCamera& camera, const World& world) {
    AddExposure(camera);
    const auto window = std::make_shared<WindowLevel>(world.Illumination());
    const LevelReader level = [window](const RegisterSpace& space) { return window->Of(space); };
    AddAutomatics(camera, world.Illumination(), level);
    AddDefectPixels(camera, world);
    AddMeasuring(camera, level);
    AddAxes(camera, {"motorcontrol", "motor target", "motors moving", 8192});
    AddAxes(camera, {"lenscontrol", "lens target", "lenses moving", 1024});
    AddTemperature(camera, world);
    camera.LockWhileAcquiring("loadsettings");
    camera.LockWhileAcquiring("acquisitionmode");
}

} // namespace Simulation
