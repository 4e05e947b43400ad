#include "Orvik.h"

namespace Simulation {

namespace {

std::uint32_t Extent(std::uint32_t first, std::uint32_t last) { return first <= last ? last - first + 1 : 0; }

void FollowReadoutArea(RegisterSpace& space) {
    const Words area = space.Get("readoutarea");
    const std::uint32_t active = 2;
    space.Set("readoutarealimits", area, active);
    space.Set("imagesize", {Extent(area[0], area[2]), Extent(area[1], area[3])});
}

void FollowReadoutTime(RegisterSpace& space) {
    space.Set("frameduration", {space.Get("readouttime")[0] + 100}); // microseconds from one readout to the next
}

} // namespace

void AddOrvikBehaviour(SimulatedCamera& camera, const OrvikModel&, const World&) {
    const auto follow = [](RegisterSpace& space) {
        FollowReadoutArea(space);
        FollowReadoutTime(space);
    };
    camera.AfterWrite("readoutarea", [](RegisterSpace& space, const auto&) { FollowReadoutArea(space); });
    camera.AfterWrite("readouttime", [](RegisterSpace& space, const auto&) { FollowReadoutTime(space); });
    camera.Derive(follow);
}

} // namespace Simulation
