#include "Simulation/Picture/Settings.h"

#include "Simulation/M2VX.h"
#include "Simulation/Orvik.h"
#include "Simulation/Picture/Frame.h"

#include <algorithm>
#include <cstddef>

namespace Simulation::Picture {

namespace {

// Beyond these everything is white anyway, and products stay within 64 bits.
constexpr std::uint64_t longestExposure = 100'000'000; // microseconds
constexpr std::uint64_t greatestGain = 1 << 15;

constexpr std::uint64_t fullScale = 16383;

template <std::size_t Size> Pattern PatternOf(const Pattern (&patterns)[Size], std::uint32_t code) {
    return code < Size ? patterns[code] : Pattern::None;
}

void SetExposure(const RegisterSpace& space, Settings& settings) {
    const std::uint64_t time = std::min(MicrosecondsOf(space.Get("exposure")), longestExposure);
    const std::uint64_t factor = GainFactor(std::min<std::uint64_t>(space.Get("gain")[0], greatestGain));
    static_assert(unityGain == 256, "both are in these fractions");
    settings.gain = static_cast<std::uint32_t>(factor);
    settings.level = nominalLevel * time * factor * fullScale / (255 * nominalExposure);
}

void SetColor(const RegisterSpace& space, Settings& settings) {
    const Words balance = space.Get("colorbalance");
    std::transform(balance.begin(), balance.end(), settings.balance.begin(),
                   [](std::uint32_t factor) { return std::min(factor, 255U); });
    settings.saturation = std::min(space.Get("saturation")[0], 255U);
    settings.lightSource = space.Get("lightsource")[0];
}

void SetOrvik(const RegisterSpace& space, Settings& settings) {
    // The whole sensor is read out at power-up.
    const Words sensor = ToWords(space.Find("readoutarea")->powerUp.instances.front().value);
    const Words area = space.Get("readoutarea");
    const Words binning = space.Get("binning");
    const std::uint32_t binningX = std::clamp(binning[0], 1U, 8U);
    const std::uint32_t binningY = std::clamp(binning[1], 1U, 8U);
    settings.readout = {sensor[2] + 1, sensor[3] + 1, area[0], area[1], binningX, binningY, false};
    settings.readout.color = space.Find("colorbalance")->role == Role::Setting;
    SetExposure(space, settings);
    if (settings.readout.color) {
        SetColor(space, settings);
        const Pattern patterns[] = {Pattern::None, Pattern::Bars};
        settings.patterns.fill(PatternOf(patterns, space.Get("patterngenerator")[0]));
    } else {
        const Pattern patterns[] = {Pattern::None, Pattern::RampRight, Pattern::RampDown, Pattern::Checkers};
        settings.patterns.fill(PatternOf(patterns, space.Get("patterngenerator")[0]));
    }
}

void SetM2VX(const RegisterSpace& space, Settings& settings) {
    settings.readout.sensorWidth = settings.width;
    settings.readout.sensorHeight = settings.height;
    const std::uint64_t time = std::min<std::uint64_t>(space.Get("exposure")[0], longestExposure / 1000);
    const std::uint64_t gain = std::min<std::uint64_t>(space.Get("gain")[0], greatestGain) + gainOffset;
    settings.gain = static_cast<std::uint32_t>(256 * gain / gainOffset);
    settings.level = 256 * gain * time * fullScale / (4 * std::uint64_t{frameTime} * 100);
    const Pattern patterns[] = {Pattern::None,      Pattern::Black,    Pattern::White,   Pattern::Gray,
                                Pattern::RampRight, Pattern::RampDown, Pattern::Checkers};
    for (std::uint32_t half = 0; half < settings.patterns.size(); ++half) {
        settings.patterns.at(half) = PatternOf(patterns, space.Get("testpattern", half)[0]);
    }
}

} // namespace

Settings SettingsOf(const RegisterSpace& space) {
    const Words size = space.Get("imagesize");
    Settings settings;
    settings.pixelFormat = PixelFormatOf(space.Get("colorcoding")[0]);
    settings.width = size[0];
    settings.height = size[1];
    settings.flipX = space.Get("horizontalflip")[0] != 0;
    settings.flipY = space.Get("verticalflip")[0] != 0;
    if (space.Find("readoutarea") != nullptr) {
        SetOrvik(space, settings);
    } else {
        SetM2VX(space, settings);
    }
    return settings;
}

} // namespace Simulation::Picture
