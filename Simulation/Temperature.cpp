#include "Simulation/Temperature.h"

namespace Simulation {

namespace {

constexpr std::uint32_t selfHeating = 60;   // during acquisition, in tenths of a degree
constexpr std::uint64_t driftInterval = 16; // steps
constexpr std::uint64_t measureInterval = 32;

} // namespace

void AddTemperature(SimulatedCamera& camera, const World& world) {
    RegisterSpace& registers = camera.Registers();
    const std::uint32_t degrees =
        registers.Get("temperature")[0] + static_cast<std::uint32_t>(world.Deviation(Stream::StartTemperature, 3));
    registers.Set("temperature", {degrees});
    registers.Set("warmth", {10 * degrees});

    camera.EachStep([world, ambient = 10 * degrees](RegisterSpace& space, std::uint64_t step) {
        std::uint32_t warmth = space.Get("warmth")[0];
        const std::uint32_t target = ambient + (space.Get("startacquisition")[0] != 0 ? selfHeating : 0);
        if (step % driftInterval == 0 && warmth != target) {
            warmth += warmth < target ? 1U : ~0U;
            space.Set("warmth", {warmth});
        }
        const std::int32_t noise = world.Noise(Stream::TemperatureNoise, step / measureInterval, 7);
        space.Set("temperature", {(warmth + static_cast<std::uint32_t>(noise) + 5) / 10});
    });
}

} // namespace Simulation
