#include "Simulation/Automatic.h"
#include "Simulation/Orvik.h"
#include "Simulation/Temperature.h"

#include <algorithm>

namespace Simulation {

namespace {

// How bright an image is: the light, times the exposure time over 20 ms, times 1 at gain 0 to 5 at gain 511. The scene
// that cameras are adjusted for gives 100, the automatic modes aim at "autoexposurelevel".
constexpr std::uint64_t nominalExposure = 20000; // microseconds
constexpr std::uint64_t longestAutomaticExposure = 1000000;
constexpr std::uint64_t unity = 256;

std::uint64_t Amplification(std::uint64_t gain) { return unity + 2 * gain; }

Words ExposureFor(const RegisterSpace& space, std::uint64_t light) {
    const std::uint64_t level = space.Get("autoexposurelevel")[0];
    const std::uint64_t time = level * nominalExposure * unity / (light * Amplification(space.Get("gain")[0]));
    const std::uint32_t base = space.Get("exposure")[0];
    const std::uint64_t unit = MicrosecondsOf({base, 1});
    return {base,
            static_cast<std::uint32_t>(std::max<std::uint64_t>(std::min(time, longestAutomaticExposure) / unit, 1))};
}

Words GainFor(const RegisterSpace& space, std::uint64_t light) {
    const std::uint64_t level = space.Get("autoexposurelevel")[0];
    const std::uint64_t time = std::max<std::uint64_t>(MicrosecondsOf(space.Get("exposure")), 1);
    const std::uint64_t amplification = level * nominalExposure * unity / (light * time);
    const std::uint64_t gain = (std::max(amplification, unity) - unity) / 2;
    return {static_cast<std::uint32_t>(std::min<std::uint64_t>(gain, 511))};
}

/// What turns white white under the light source that the camera is told of, in this scene.
Words BalanceFor(const RegisterSpace& space, const World& world) {
    const Words balances[] = {{128, 128, 128}, {104, 128, 176}, {120, 128, 148}, {140, 128, 112}};
    Words balance = balances[space.Get("lightsource")[0]];
    for (std::uint32_t i = 0; i < balance.size(); ++i) {
        balance[i] += static_cast<std::uint32_t>(world.Deviation(Stream::WhitePoint, 20, i));
    }
    return balance;
}

void AddAutomatics(SimulatedCamera& camera, const World& world) {
    const std::uint64_t light = world.Light();
    const auto shade = static_cast<std::uint32_t>(200 - light);
    const auto exposure = [=](const RegisterSpace& space) { return ExposureFor(space, light); };
    const auto gain = [=](const RegisterSpace& space) { return GainFor(space, light); };
    const auto brightness = [=](const RegisterSpace& space) { return Words{space.Get("acc")[0] * shade}; };
    const auto contrast = [](const RegisterSpace& space) { return Words{64 + 16 * space.Get("acc")[0]}; };
    const auto balance = [=](const RegisterSpace& space) { return BalanceFor(space, world); };
    // clang-format off
    AddAutomatic(camera, {"aet", "exposure",     exposure, FollowTiming});
    AddAutomatic(camera, {"agc", "gain",         gain});
    AddAutomatic(camera, {"acc", "brightness",   brightness});
    AddAutomatic(camera, {"acc", "contrast",     contrast});
    AddAutomatic(camera, {"awb", "colorbalance", balance});
    // clang-format on
}

} // namespace

void AddOrvikBehaviour(SimulatedCamera& camera, const OrvikModel& model, const World& world) {
    AddOrvikGeometry(camera, model);
    AddOrvikTiming(camera);
    AddAutomatics(camera, world);
    AddTemperature(camera, world);
}

} // namespace Simulation
