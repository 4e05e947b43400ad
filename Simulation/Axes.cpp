#include "Simulation/Axes.h"

#include <algorithm>

namespace Simulation {

namespace {

/// @return whether the channel was moving
bool MoveStep(RegisterSpace& space, const Axes& axes, std::uint32_t channel) {
    const Words target = space.Get(axes.target, channel);
    if (target[0] == 0) {
        return false;
    }
    const std::uint32_t from = space.Get(axes.position, channel)[0];
    const std::uint32_t to = target[1];
    const std::uint32_t position =
        from < to ? from + std::min(axes.speed, to - from) : from - std::min(axes.speed, from - to);
    space.Set(axes.position, {position}, channel);
    if (position == to) {
        space.Set(axes.target, {0, to}, channel);
        space.Set(axes.moving, {space.Get(axes.moving)[0] - 1});
    }
    return true;
}

void StartMove(RegisterSpace& space, const Axes& axes, const RegisterSpace::Change& change) {
    const std::uint32_t channel = change.index;
    const std::uint32_t to = space.Get(axes.position, channel)[0];
    const bool moved = space.Get(axes.target, channel)[0] != 0;
    space.Set(axes.position, change.before, channel);
    space.Set(axes.target, {1, to}, channel);
    space.Set(axes.moving, {space.Get(axes.moving)[0] + (moved ? 0 : 1)});
    MoveStep(space, axes, channel);
}

} // namespace

void AddAxes(SimulatedCamera& camera, const Axes& axes) {
    camera.AfterWrite(axes.position,
                      [axes](RegisterSpace& space, const auto& change) { StartMove(space, axes, change); });
    camera.EachStep([axes](RegisterSpace& space, auto) {
        std::uint32_t left = space.Get(axes.moving)[0];
        for (std::uint32_t i = 0, count = space.Count(axes.position); left != 0 && i < count; ++i) {
            if (MoveStep(space, axes, i)) {
                --left;
            }
        }
    });
}

} // namespace Simulation
