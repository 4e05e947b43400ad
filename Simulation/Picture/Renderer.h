#pragma once

#include "Simulation/Picture/Frame.h"
#include "Simulation/Picture/Light.h"
#include "Simulation/Picture/Settings.h"
#include "Simulation/Picture/View.h"
#include "Simulation/World.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Simulation::Picture {

/// Turns settings into the bytes of frames: the same bytes for the same world, settings and number of the frame, in
/// every build.
///
/// A frame is made line by line, in the order of a camera: the tones of the scene and the mark (View), light and noise
/// (Noise, Tables) or else a test pattern, the channels (Tables, saturation), flips, and the coding (CodeLine). What
/// depends on the settings alone is kept until they change.
class Renderer {
public:
    explicit Renderer(const World& seen) : world(seen), noise(seen) {}

    /// @param frame is filled; its memory is used again
    void Render(const Settings& settings, std::uint64_t number, Frame& frame);

private:
    void Update(const Settings& settings);
    /// Line @p y of what is read out.
    void MakeLine(std::uint32_t y, std::uint64_t number);
    void MakePixels(std::uint32_t y, std::uint64_t number);
    /// Puts a pattern into one half of the line.
    void MakePattern(std::uint32_t y, std::size_t half);

    World world;
    Noise noise;
    View view;
    Tables tables;
    std::optional<Settings> made; ///< the settings that the tables are for
    std::size_t channels = 1;     ///< of the line
    std::vector<std::uint16_t> line;
};

} // namespace Simulation::Picture
