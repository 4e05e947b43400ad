#pragma once

#include "Simulation/Register.h"

#include <cstdint>

namespace Simulation::Picture {

// Pixel formats of the GigE Vision standard, and the device's own of raw pixels.
constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t mono14 = 0x01100025;
constexpr std::uint32_t mono12Packed = 0x010C0006;
constexpr std::uint32_t yuv422Packed = 0x0210001F;
constexpr std::uint32_t rgb8 = 0x02180014;
constexpr std::uint32_t bgr8 = 0x02180015;
constexpr std::uint32_t raw14 = 0x82100025; ///< a mosaic; its first line begins with green and red

/// A frame as a camera sends it.
struct Frame {
    std::uint32_t pixelFormat = 0; ///< of the GigE Vision standard
    std::uint32_t width = 0;       ///< in pixels
    std::uint32_t height = 0;
    std::uint32_t offsetX = 0; ///< of the readout area, in binned pixels
    std::uint32_t offsetY = 0;
    Bytes bytes{};
};

/// The pixel format that the GigE Vision standard has for a colour coding, or the device's own; 0 for an unknown
/// coding.
[[nodiscard]] std::uint32_t PixelFormatOf(std::uint32_t colorCoding);

/// How many bits a pixel takes in the stream.
[[nodiscard]] constexpr std::uint32_t BitsPerPixel(std::uint32_t pixelFormat) { return pixelFormat >> 16 & 0xFFU; }

/// How many bytes a frame of that size has.
[[nodiscard]] constexpr std::uint64_t PayloadSize(std::uint32_t pixelFormat, std::uint32_t width,
                                                  std::uint32_t height) {
    return (std::uint64_t{width} * height * BitsPerPixel(pixelFormat) + 7) / 8;
}

} // namespace Simulation::Picture
