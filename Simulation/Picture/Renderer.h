#pragma once

#include "Simulation/Picture/Frame.h"
#include "Simulation/Picture/Settings.h"
#include "Simulation/World.h"

#include <cstdint>

namespace Simulation::Picture {

/// Turns settings into the bytes of frames: the same bytes for the same world, settings and number of the frame, in
/// every build.
class Renderer {
public:
    explicit Renderer(const World& seen) : world(seen) {}

    /// @param frame is filled; its memory is used again
    void Render(const Settings& settings, std::uint64_t number, Frame& frame);

private:
    World world;
};

} // namespace Simulation::Picture
