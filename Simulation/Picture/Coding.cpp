#include "Simulation/Picture/Coding.h"

#include "Simulation/Picture/Frame.h"

#include <algorithm>
#include <utility>

namespace Simulation::Picture {

namespace {

/// The pixels of a line.
template <std::size_t Channels> struct Pixels {
    const std::uint16_t* values;
    std::size_t count;

    [[nodiscard]] std::uint32_t Gray(std::size_t x) const {
        if constexpr (Channels == 1) {
            return values[x];
        } else {
            return (77U * values[3 * x] + 150U * values[3 * x + 1] + 29U * values[3 * x + 2]) >> 8;
        }
    }
    /// Of a channel, in 8 bits.
    [[nodiscard]] std::uint8_t Byte(std::size_t x, std::size_t channel) const {
        return static_cast<std::uint8_t>(values[Channels * x + (Channels == 1 ? 0 : channel)] >> 6);
    }
};

template <typename Line> void CodeMono8(const Line& line, std::uint8_t* bytes) {
    for (std::size_t x = 0; x < line.count; ++x) {
        bytes[x] = static_cast<std::uint8_t>(line.Gray(x) >> 6);
    }
}

template <typename Line> void CodeMono14(const Line& line, std::uint8_t* bytes) {
    for (std::size_t x = 0; x < line.count; ++x) {
        bytes[2 * x] = static_cast<std::uint8_t>(line.Gray(x) & 0xFFU);
        bytes[2 * x + 1] = static_cast<std::uint8_t>(line.Gray(x) >> 8);
    }
}

/// Two pixels share three bytes, also the last of a line and the first of the next one.
template <typename Line> void CodeMono12Packed(const Line& line, std::size_t first, Bytes& bytes) {
    for (std::size_t x = 0; x < line.count; ++x) {
        const std::uint32_t value = line.Gray(x) >> 2;
        const std::size_t pixel = first + x;
        std::uint8_t* const pair = &bytes[pixel / 2 * 3];
        if (pixel % 2 == 0) {
            pair[0] = static_cast<std::uint8_t>(value >> 4);
            pair[1] = value & 0x0FU;
        } else {
            pair[1] = static_cast<std::uint8_t>(pair[1] | (value & 0x0FU) << 4);
            pair[2] = static_cast<std::uint8_t>(value >> 4);
        }
    }
}

template <bool BlueFirst, typename Line> void CodeRgb8(const Line& line, std::uint8_t* bytes) {
    for (std::size_t x = 0; x < line.count; ++x) {
        bytes[3 * x] = line.Byte(x, BlueFirst ? 2 : 0);
        bytes[3 * x + 1] = line.Byte(x, 1);
        bytes[3 * x + 2] = line.Byte(x, BlueFirst ? 0 : 2);
    }
}

/// The colour of two pixels, of 0 to 255 each: their sum, weighed in 1/256.
template <typename Line>
std::uint8_t Difference(const Line& line, std::size_t left, std::size_t right, const std::int32_t (&weights)[3]) {
    std::int32_t sum = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        sum += weights[channel] * (line.Byte(left, channel) + line.Byte(right, channel));
    }
    return static_cast<std::uint8_t>(std::clamp(128 + (sum >> 9), 0, 255));
}

/// UYVY: two pixels share their colour. A last one without another has a U alone.
template <typename Line> void CodeYuv422(const Line& line, std::uint8_t* bytes) {
    const std::int32_t blueness[] = {-43, -85, 128};
    const std::int32_t redness[] = {128, -107, -21};
    for (std::size_t x = 0; x < line.count; x += 2) {
        const std::size_t right = std::min(x + 1, line.count - 1);
        bytes[2 * x] = Difference(line, x, right, blueness);
        bytes[2 * x + 1] = static_cast<std::uint8_t>(line.Gray(x) >> 6);
        if (right > x) {
            bytes[2 * x + 2] = Difference(line, x, right, redness);
            bytes[2 * x + 3] = static_cast<std::uint8_t>(line.Gray(right) >> 6);
        }
    }
}

template <std::size_t Channels>
void Code(std::uint32_t pixelFormat, const Pixels<Channels>& pixels, std::size_t first, Bytes& bytes) {
    std::uint8_t* const start = bytes.data() + first * BitsPerPixel(pixelFormat) / 8;
    switch (pixelFormat) {
    case mono8:
        return CodeMono8(pixels, start);
    case mono14:
    case raw14:
        return CodeMono14(pixels, start);
    case mono12Packed:
        return CodeMono12Packed(pixels, first, bytes);
    case rgb8:
        return CodeRgb8<false>(pixels, start);
    case bgr8:
        return CodeRgb8<true>(pixels, start);
    case yuv422Packed:
        return CodeYuv422(pixels, start);
    default: // there are no bytes
        break;
    }
}

} // namespace

void CodeLine(std::uint32_t pixelFormat, std::span<const std::uint16_t> values, std::size_t channels,
              std::uint32_t line, Bytes& bytes) {
    const std::size_t count = values.size() / channels;
    if (channels == 1) {
        Code(pixelFormat, Pixels<1>{values.data(), count}, line * count, bytes);
    } else {
        Code(pixelFormat, Pixels<3>{values.data(), count}, line * count, bytes);
    }
}

} // namespace Simulation::Picture
