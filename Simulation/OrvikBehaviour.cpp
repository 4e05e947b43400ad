#include "Simulation/AutomaticMode.h"
#include "Simulation/Orvik.h"
#include "Simulation/Temperature.h"

#include <algorithm>
#include <iterator>

namespace Simulation {

namespace {

constexpr std::uint64_t longestAutomaticExposure = 1000000; // microseconds

Words ExposureFor(const RegisterSpace& space, std::uint64_t illumination) {
    const std::uint64_t level = space.Get("autoexposurelevel")[0];
    const std::uint64_t time = level * nominalExposure * unityGain / (illumination * GainFactor(space.Get("gain")[0]));
    const std::uint32_t base = space.Get("exposure")[0];
    const std::uint64_t unit = MicrosecondsOf({base, 1});
    return {base,
            static_cast<std::uint32_t>(std::max<std::uint64_t>(std::min(time, longestAutomaticExposure) / unit, 1))};
}

Words GainFor(const RegisterSpace& space, std::uint64_t illumination) {
    const std::uint64_t level = space.Get("autoexposurelevel")[0];
    const std::uint64_t time = std::max<std::uint64_t>(MicrosecondsOf(space.Get("exposure")), 1);
    const std::uint64_t factor = level * nominalExposure * unityGain / (illumination * time);
    const std::uint64_t gain = (std::max(factor, unityGain) - unityGain) / 2;
    return {static_cast<std::uint32_t>(std::min<std::uint64_t>(gain, 511))};
}

void AddAutomatics(SimulatedCamera& camera, const World& world) {
    const std::uint64_t illumination = world.Illumination();
    const auto compensation = static_cast<std::uint32_t>(200 - illumination);
    const auto exposure = [=](const RegisterSpace& space) { return ExposureFor(space, illumination); };
    const auto gain = [=](const RegisterSpace& space) { return GainFor(space, illumination); };
    const auto brightness = [=](const RegisterSpace& space) { return Words{space.Get("acc")[0] * compensation}; };
    const auto contrast = [](const RegisterSpace& space) { return Words{64 + 16 * space.Get("acc")[0]}; };
    const auto balance = [=](const RegisterSpace& space) { return WhiteBalanceOf(space.Get("lightsource")[0], world); };
    // clang-format off
    AddAutomaticMode(camera, {"aet", "exposure",     exposure, UpdateTiming});
    AddAutomaticMode(camera, {"agc", "gain",         gain});
    AddAutomaticMode(camera, {"acc", "brightness",   brightness});
    AddAutomaticMode(camera, {"acc", "contrast",     contrast});
    AddAutomaticMode(camera, {"awb", "colorbalance", balance});
    // clang-format on
}

} // namespace

Words WhiteBalanceOf(std::uint32_t lightSource, const World& world) {
    const Words balances[] = {{128, 128, 128}, {104, 128, 176}, {120, 128, 148}, {140, 128, 112}};
    Words balance = balances[std::min<std::size_t>(lightSource, std::size(balances) - 1)];
    for (std::uint32_t i = 0; i < balance.size(); ++i) {
        balance[i] += static_cast<std::uint32_t>(world.Deviation(Stream::WhitePoint, 20, i));
    }
    return balance;
}

void AddOrvikBehaviour(SimulatedCamera& camera, const OrvikModel& model, const World& world) {
    AddOrvikGeometry(camera, model);
    AddOrvikTiming(camera);
    AddAutomatics(camera, world);
    AddTemperature(camera, world);
}

} // namespace Simulation
