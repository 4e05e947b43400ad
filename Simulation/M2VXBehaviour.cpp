#include "M2VX.h"
#include "SettingsSets.h"

#include <algorithm>
#include <memory>

namespace Simulation {

namespace {

struct Limits {
    std::int64_t lowest; ///< a negative one makes the word a signed one
    std::int64_t highest;
};

/// A register that takes the nearest admitted value in place of one that is not.
struct Clamped {
    const char* name;
    std::vector<Limits> words;
};

// clang-format off
const Clamped clampedRegisters[] = {
    // name                     lowest and highest of each word
    {"exposure",                {{1, 2000}}},
    {"twinmodeshutteroffset",   {{0, 2000}}},
    {"defectpixel",             {{0, 1024}, {0, 1024}, {0, 2}}},
    {"gain",                    {{0, 568}}},
    {"overlayposition",         {{-500, 499}, {-500, 499}}},
    {"overlaysize",             {{0, 3}, {1, 1024}}},
    {"brightness",              {{0, 16383}}},
    {"contrast",                {{0, 255}}},
    {"sharpness",               {{0, 255}}},
    {"gammaindex",              {{0, 12}}},
    {"shadingcorrection",       {{-128, 127}}},
    {"circularblankingsize",    {{1, 512}}},
    {"circularblankingposition",{{0, 1023}, {0, 1023}}},
    {"measurewindow",           {{0, 511}, {1, 3}, {-511, 511}, {-511, 511}, {1, 512}}},
    {"automaticlevel",          {{0, 100}}},
    {"abcthreshold",            {{0, 1023}}},
};
// clang-format on

std::uint32_t Clamp(std::uint32_t word, const Limits& limits) {
    const std::int64_t value = limits.lowest < 0 ? static_cast<std::int32_t>(word) : std::int64_t{word};
    return static_cast<std::uint32_t>(std::clamp(value, limits.lowest, limits.highest));
}

void Clamp(RegisterSpace& space, const Clamped& entry) {
    for (std::uint32_t index = 0; index < space.Count(entry.name); ++index) {
        Words words = space.Get(entry.name, index);
        std::transform(words.begin(), words.end(), entry.words.begin(), words.begin(),
                       [](std::uint32_t word, const Limits& limits) { return Clamp(word, limits); });
        space.Set(entry.name, words, index);
    }
}

/// Without an exposure time of its own, a frame is exposed as long as it lasts.
void FollowExposureMode(RegisterSpace& space) {
    const std::uint32_t resetRestart = 3;
    if (space.Get("exposuremode")[0] != resetRestart) {
        space.Set("exposure", {33});
    }
}

/// The automatic gain has found what its level asks for.
void FollowAutomaticGain(RegisterSpace& space) {
    if (space.Get("agc")[0] != 0) {
        space.Set("gain", {4 * space.Get("automaticlevel")[0]});
    }
}

/// The search finds one pair more than there was.
void FindDefectPixels(RegisterSpace& space) {
    const std::uint32_t used = space.Get("defectpixelcount")[0];
    if (2 * used < space.Count("defectpixel")) {
        space.Set("defectpixel", {300 + used, 301, 1}, 2 * used);
        space.Set("defectpixel", {300 + used, 302, 1}, 2 * used + 1);
        space.Set("defectpixelcount", {used + 1});
    }
}

} // namespace

void AddM2VXBehaviour(SimulatedCamera& camera) {
    for (const Clamped& entry : clampedRegisters) {
        camera.AfterWrite(entry.name, [&entry](RegisterSpace& space) { Clamp(space, entry); });
    }
    camera.AfterWrite("exposuremode", FollowExposureMode);
    camera.AfterWrite("agc", FollowAutomaticGain);
    camera.AfterWrite("automaticlevel", FollowAutomaticGain);
    camera.AfterWrite("autocompensation", FindDefectPixels);

    const auto sets = AddSettingsSets(camera);
    camera.AfterWrite("restart", [sets](RegisterSpace& space) { sets->Load(space.Get("startupsettings")[0], space); });
}

} // namespace Simulation
