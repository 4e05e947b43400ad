#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace Host {

/// How the pixels of a picture are stored.
enum class PixelLayout { Mono8, Mono16, Mono12Packed, Yuv422Packed, Rgb8, Bgr8 };

/// A pixel format that cameras send.
struct PixelFormat {
    std::uint32_t code; ///< of the GigE Vision standard
    const char* name;   ///< as in the function "colorcoding"
    PixelLayout layout;
    unsigned int channels; ///< 1 for grey, 3 for red, green, blue
    unsigned int bits;     ///< per sample

    [[nodiscard]] constexpr std::uint32_t FullScale() const { return (1U << bits) - 1; }
};

/// The format with that code, or null for an unknown one.
[[nodiscard]] const PixelFormat* FindPixelFormat(std::uint32_t code);

/// "rgb8", or the code of an unknown format.
[[nodiscard]] std::string PixelFormatName(std::uint32_t code);

/// The number of bytes of a picture.
[[nodiscard]] constexpr std::uint64_t PayloadSize(std::uint32_t code, std::uint32_t width, std::uint32_t height) {
    const std::uint32_t bitsPerPixel = code >> 16 & 0xFFU;
    return (std::uint64_t{width} * height * bitsPerPixel + 7) / 8;
}

/// Reads the samples of one line, interleaved by pixel. YUV is converted to red, green and blue.
/// @param bytes   the whole picture, of PayloadSize bytes
/// @param samples receives the line, of width times channels samples
void ReadLine(const PixelFormat& format, std::span<const std::uint8_t> bytes, std::uint32_t width, std::uint32_t line,
              std::span<std::uint16_t> samples);

} // namespace Host
