#include "Simulation/Picture/Settings.h"

#include "Simulation/M2VX.h"
#include "Simulation/Orvik.h"
#include "Simulation/Picture/Frame.h"
#include "Simulation/Picture/Numbers.h"
#include "Simulation/Picture/Shapes.h"

#include <algorithm>
#include <cstddef>

namespace Simulation::Picture {

namespace {

// Beyond these everything is white anyway, and products stay within 64 bits.
constexpr std::uint64_t longestExposure = 100'000'000; // microseconds
constexpr std::uint64_t greatestGain = 1 << 15;

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

bool IsOn(const RegisterSpace& space, const char* name) { return space.Get(name)[0] != 0; }

MemorySettings MemoryOf(const RegisterSpace& space) {
    const bool detectsMotion = space.Find("automotiondetection") != nullptr && IsOn(space, "automotiondetection");
    return {std::min(space.Get("recursivefilter")[0], 8U), detectsMotion, IsOn(space, "storeimage"),
            IsOn(space, "imagesubtraction"), IsOn(space, "lastimagehold")};
}

/// @param step of the brightness, in steps of 14 bits
CurveSettings CurveOf(const RegisterSpace& space, std::uint32_t step) {
    CurveSettings curve;
    curve.brightness = std::min<std::uint32_t>(space.Get("brightness")[0], fullScale) * step;
    curve.contrast = std::min(space.Get("contrast")[0], 255U);
    curve.negative = IsOn(space, "negativeimage");
    return curve;
}

std::int32_t GammaOf(std::uint32_t index) { return std::clamp(static_cast<std::int32_t>(index), -8, 12); }

std::array<std::int32_t, 4> ShadingOf(const RegisterSpace& space) {
    std::array<std::int32_t, 4> corners{};
    for (std::uint32_t i = 0; i < corners.size() && IsOn(space, "shadingcorrectionmode"); ++i) {
        corners.at(i) = std::clamp(static_cast<std::int32_t>(space.Get("shadingcorrection", i)[0]), -128, 127);
    }
    return corners;
}

/// The pixels in use: the camera counts them in pairs.
std::vector<ListedPixel> ListedPixels(const RegisterSpace& space) {
    std::vector<ListedPixel> pixels;
    for (std::uint32_t i = 0, count = 2 * space.Get("defectpixelcount")[0]; i < count; ++i) {
        const Words pixel = space.Get("defectpixel", i);
        if (pixel[2] != 0) {
            pixels.push_back({pixel[0], pixel[1], pixel[2]});
        }
    }
    return pixels;
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
    settings.drawing = OrvikDrawing(space);
    if (settings.pixelFormat != raw14) {
        settings.sharpness = std::min(space.Get("sharpness")[0], 255U);
        settings.curve = CurveOf(space, 4);
        settings.curve.gamma = IsOn(space, "lutmode") ? GammaOf(space.Get("lutindex")[0]) : 0;
    }
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
    const std::uint64_t gain = std::min<std::uint64_t>(space.Get("gain")[0], greatestGain) + gainOffset;
    settings.gain = static_cast<std::uint32_t>(256 * gain / gainOffset);
    settings.level = M2VXLevel(space);
    settings.listed = ListedPixels(space);
    settings.showsDefects = IsOn(space, "defectpixelshow");
    settings.shading = ShadingOf(space);
    settings.sharpness = std::min(space.Get("sharpness")[0], 255U);
    settings.curve = CurveOf(space, 1);
    settings.curve.equalization = space.Get("histogramequalization")[0];
    settings.curve.gamma = GammaOf(space.Get("gammaindex")[0]);
    settings.drawing = M2VXDrawing(space);
    const Pattern patterns[] = {Pattern::None,      Pattern::Black,    Pattern::White,   Pattern::Gray,
                                Pattern::RampRight, Pattern::RampDown, Pattern::Checkers};
    for (std::uint32_t half = 0; half < settings.patterns.size(); ++half) {
        settings.patterns.at(half) = PatternOf(patterns, space.Get("testpattern", half)[0]);
    }
}

} // namespace

std::uint64_t M2VXLevel(const RegisterSpace& space) {
    const std::uint64_t time = std::min<std::uint64_t>(space.Get("exposure")[0], longestExposure / 1000);
    const std::uint64_t gain = std::min<std::uint64_t>(space.Get("gain")[0], greatestGain) + gainOffset;
    return 256 * gain * time * fullScale / (4 * std::uint64_t{frameTime} * 100);
}

Settings SettingsOf(const RegisterSpace& space) {
    const Words size = space.Get("imagesize");
    Settings settings;
    settings.pixelFormat = PixelFormatOf(space.Get("colorcoding")[0]);
    settings.width = size[0];
    settings.height = size[1];
    settings.flipX = space.Get("horizontalflip")[0] != 0;
    settings.flipY = space.Get("verticalflip")[0] != 0;
    settings.memory = MemoryOf(space);
    if (space.Find("readoutarea") != nullptr) {
        SetOrvik(space, settings);
    } else {
        SetM2VX(space, settings);
    }
    return settings;
}

} // namespace Simulation::Picture
