#pragma once

#include "Simulation/Picture/Defects.h"
#include "Simulation/Picture/Frame.h"
#include "Simulation/Picture/Light.h"
#include "Simulation/Picture/Memory.h"
#include "Simulation/Picture/Settings.h"
#include "Simulation/Picture/View.h"
#include "Simulation/World.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Simulation::Picture {

/// Turns settings into the bytes of frames: the same bytes for the same world, settings and number of the frame, in
/// every build. Only with image memory in use (recursive filter, stored image ...) the frames before count, too.
///
/// A frame is made in the order of a camera:
///
/// | Step                                                        | By                   | Of                        |
/// |-------------------------------------------------------------|----------------------|---------------------------|
/// | tones of the scene and the mark                             | View                 | a line                    |
/// | light, noise, colour balance; or else a test pattern        | Noise, Tables        | a line                    |
/// | defect pixels, shading correction                           | Defects              | a line, not of a pattern  |
/// | saturation                                                  | Saturate             | a line                    |
/// | filter, stored image, subtraction, hold                     | Memory               | the whole, if any is on   |
/// | sharpness                                                   | Sharpen              | the whole, if on          |
/// | brightness, contrast, equalization, look-up table, negative | CurveOf              | a line, if any is on      |
/// | flips, blanking, overlays, measure frames                   | DrawLine             | a line, if any is on      |
/// | coding                                                      | CodeLine             | a line                    |
///
/// What depends on the settings alone is kept until they change.
class Renderer {
public:
    explicit Renderer(const World& seen) : world(seen), noise(seen) {}

    /// @param frame is filled; its memory is used again
    void Render(const Settings& settings, std::uint64_t number, Frame& frame);

private:
    void Update(const Settings& settings);
    /// All of what is read out, up to the sharpness.
    void MakeImage(std::uint64_t number, bool usesMemory);
    /// Line @p y of what is read out.
    void MakeLine(std::uint32_t y, std::uint64_t number);
    void MakePixels(std::uint32_t y, std::uint64_t number);
    /// Puts a pattern into one half of the line.
    void MakePattern(std::uint32_t y, std::size_t half);
    /// Line @p y of the frame.
    void FinishLine(std::uint32_t y);

    World world;
    Noise noise;
    View view;
    Tables tables;
    Defects defects;
    Memory memory;
    std::optional<Settings> made; ///< the settings that the tables are for
    std::size_t channels = 1;     ///< of the line
    bool isCurved = false;
    std::vector<std::uint16_t> curve;
    std::vector<std::uint16_t> line;
    std::vector<std::uint16_t> image;
};

} // namespace Simulation::Picture
