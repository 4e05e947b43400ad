#pragma once

#include "Simulation/RegisterSpace.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace Simulation::Picture {

/// What takes the place of what the sensor sees.
enum class Pattern : std::uint8_t {
    None,
    Black,
    White,
    Gray,
    RampRight, ///< from black to white
    RampDown,
    Checkers,
    Bars, ///< of colours
};

/// Which part of the sensor is read out, and how.
struct Readout {
    std::uint32_t sensorWidth = 0; ///< in pixels
    std::uint32_t sensorHeight = 0;
    std::uint32_t offsetX = 0; ///< in binned pixels
    std::uint32_t offsetY = 0;
    std::uint32_t binningX = 1;
    std::uint32_t binningY = 1;
    bool color = false; ///< of a sensor with colour filters

    bool operator==(const Readout&) const = default;
};

/// A pixel that the camera's table of defect pixels has.
struct ListedPixel {
    std::uint32_t column, line;
    std::uint32_t mode; ///< of replacement: 1 by the pixel on the left, 2 by the mean of both sides

    bool operator==(const ListedPixel&) const = default;
};

/// What is done with former frames.
struct MemorySettings {
    std::uint32_t recursion = 0; ///< a frame counts 1/2^recursion
    bool detectsMotion = false;  ///< the recursion begins anew where the picture moves
    bool store = false;          ///< the frame becomes the stored image
    bool subtract = false;
    bool hold = false;

    bool operator==(const MemorySettings&) const = default;
};

/// What is done to the values of pixels one by one.
struct CurveSettings {
    std::uint32_t brightness = 0; ///< added, in steps of 14 bits
    std::uint32_t contrast = 64;  ///< 64: as it is
    std::uint32_t equalization = 0;
    std::int32_t gamma = 0; ///< -8 to 12
    bool negative = false;

    bool operator==(const CurveSettings&) const = default;
};

/// A filled rectangle on the frame, both corners inclusive. It may lie outside of the frame.
struct Box {
    std::int64_t left, top, right, bottom;
    std::uint32_t color; ///< a code

    bool operator==(const Box&) const = default;
};

/// A circle on the frame, or an ellipse.
struct Disc {
    std::int64_t x, y;
    std::int64_t across, down; ///< half of its width and height

    [[nodiscard]] bool Contains(std::int64_t column, std::int64_t line) const {
        const std::int64_t right = (column - x) * down;
        const std::int64_t below = (line - y) * across;
        return right * right + below * below < across * across * down * down;
    }
    bool operator==(const Disc&) const = default;
};

/// The outline of a disc.
struct Ring {
    Disc disc;
    std::int64_t stroke; ///< width of the line, inwards
    std::uint32_t color; ///< a code

    bool operator==(const Ring&) const = default;
};

/// What is drawn on frames, in this order.
struct DrawingSettings {
    std::optional<Disc> blanked{}; ///< outside of it all is black
    std::vector<Box> boxes{};
    std::optional<Ring> ring{};

    bool operator==(const DrawingSettings&) const = default;
};

/// What the registers of a camera say about its pictures, in the same terms for both families.
struct Settings {
    std::uint32_t pixelFormat = 0; ///< of the GigE Vision standard
    std::uint32_t width = 0;       ///< of the frame, in pixels
    std::uint32_t height = 0;
    Readout readout{};
    bool flipX = false;
    bool flipY = false;
    std::uint64_t level = 0; ///< the mean of the nominal scene, in 1/256 of a step of 14 bits
    std::uint32_t gain = 0;  ///< 256: none; noise grows with it, the level contains it
    std::uint32_t lightSource = 0;
    std::array<std::uint32_t, 3> balance{128, 128, 128}; ///< gains of red, green, blue, in 1/128
    std::uint32_t saturation = 128;                      ///< 128: as it is
    std::array<Pattern, 2> patterns{};                   ///< of the left and the right half
    std::optional<std::vector<ListedPixel>> listed{};    ///< the table of defect pixels, of a camera that has one
    bool showsDefects = false;
    std::array<std::int32_t, 4> shading{}; ///< what is added in the corners, in 1/256; 0: nothing
    MemorySettings memory{};
    std::uint32_t sharpness = 0; ///< 0: as it is
    CurveSettings curve{};
    DrawingSettings drawing{};

    bool operator==(const Settings&) const = default;
};

/// The settings that the registers hold now.
[[nodiscard]] Settings SettingsOf(const RegisterSpace& space);

/// The level of an M2VX camera in the nominal scene, as Settings::level.
[[nodiscard]] std::uint64_t M2VXLevel(const RegisterSpace& space);

} // namespace Simulation::Picture
