#include "Simulation/Temperature.h"

namespace Simulation {

namespace {

constexpr std::uint32_t tenthsByAcquisition = 60;
constexpr std::uint64_t stepsOfDrift = 16;
constexpr std::uint64_t stepsOfMeasuring = 32;

} // namespace

void AddTemperature(SimulatedCamera& camera, const World& world) {
    RegisterSpace& registers = camera.Registers();
    const std::uint32_t degrees =
        registers.Get("temperature")[0] + static_cast<std::uint32_t>(world.Deviation(Stream::StartTemperature, 3));
    registers.Set("temperature", {degrees});
    registers.Set("warmth", {10 * degrees});

    camera.EachStep([world, idle = 10 * degrees](RegisterSpace& space, std::uint64_t step) {
        std::uint32_t warmth = space.Get("warmth")[0];
        const std::uint32_t goal = idle + (space.Get("startacquisition")[0] != 0 ? tenthsByAcquisition : 0);
        if (step % stepsOfDrift == 0 && warmth != goal) {
            warmth += warmth < goal ? 1U : ~0U;
            space.Set("warmth", {warmth});
        }
        const std::int32_t noise = world.Noise(Stream::TemperatureNoise, step / stepsOfMeasuring, 7);
        space.Set("temperature", {(warmth + static_cast<std::uint32_t>(noise) + 5) / 10});
    });
}

} // namespace Simulation
