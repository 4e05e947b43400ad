#include "Host/Pictures/PixelFormat.h"

#include "Common/Number.h"

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

// clang-format off
constexpr PixelFormat knownFormats[] = {
    {0x01080001, "mono8",        PixelLayout::Mono8,        1, 8},
    {0x01100025, "mono14",       PixelLayout::Mono16,       1, 14},
    {0x010C0006, "mono12packed", PixelLayout::Mono12Packed, 1, 12},
    {0x0210001F, "yuv422packed", PixelLayout::Yuv422Packed, 3, 8},
    {0x02180014, "rgb8",         PixelLayout::Rgb8,         3, 8},
    {0x02180015, "bgr8",         PixelLayout::Bgr8,         3, 8},
    {0x82100025, "raw14",        PixelLayout::Mono16,       1, 14},
};
// clang-format on

/// One of the two pixels in three bytes: the outer bytes have the high bits, the middle one the low bits of both.
std::uint16_t Packed12(const std::uint8_t* bytes, std::uint64_t pixel) {
    const std::uint8_t* const pair = bytes + pixel / 2 * 3;
    return pixel % 2 == 0 ? static_cast<std::uint16_t>(pair[0] << 4 | (pair[1] & 0x0F))
                          : static_cast<std::uint16_t>(pair[2] << 4 | pair[1] >> 4);
}

std::uint16_t Clamp8(int fixed) { // with 16 fractional bits
    return static_cast<std::uint16_t>(std::clamp((fixed + 0x8000) >> 16, 0, 255));
}

/// U Y V Y in the full range of 8 bits, with the weights of ITU-R BT.601.
void ReadYuvLine(const std::uint8_t* line, std::uint32_t width, std::uint16_t* sample) {
    for (std::uint32_t x = 0; x < width; ++x, sample += 3) {
        const std::uint8_t* const pair = line + std::size_t{x} / 2 * 4;
        const int y = pair[x % 2 == 0 ? 1 : 3] << 16;
        const int u = pair[0] - 128;
        const bool isCut = x % 2 == 0 && x + 1 == width; // a line of odd width ends without its last V
        const int v = isCut ? 0 : pair[2] - 128;
        sample[0] = Clamp8(y + 91881 * v);
        sample[1] = Clamp8(y - 22554 * u - 46802 * v);
        sample[2] = Clamp8(y + 116130 * u);
    }
}

} // namespace

const PixelFormat* FindPixelFormat(std::uint32_t code) {
    const auto* const found = std::find_if(std::begin(knownFormats), std::end(knownFormats),
                                           [code](const PixelFormat& format) { return format.code == code; });
    return found == std::end(knownFormats) ? nullptr : found;
}

std::string PixelFormatName(std::uint32_t code) {
    const PixelFormat* const format = FindPixelFormat(code);
    return format == nullptr ? Common::Hex(code) : format->name;
}

void ReadLine(const PixelFormat& format, std::span<const std::uint8_t> bytes, std::uint32_t width, std::uint32_t line,
              std::span<std::uint16_t> samples) {
    const std::uint64_t first = std::uint64_t{width} * line; // pixel of the line in the picture
    const std::uint8_t* const data = bytes.data();
    switch (format.layout) {
    case PixelLayout::Mono8:
        std::copy_n(data + first, width, samples.begin());
        break;
    case PixelLayout::Mono16:
        for (std::uint32_t x = 0; x < width; ++x) {
            const std::uint8_t* const pixel = data + 2 * (first + x);
            samples[x] = static_cast<std::uint16_t>((pixel[0] | pixel[1] << 8) & static_cast<int>(format.FullScale()));
        }
        break;
    case PixelLayout::Mono12Packed:
        for (std::uint32_t x = 0; x < width; ++x) {
            samples[x] = Packed12(data, first + x);
        }
        break;
    case PixelLayout::Yuv422Packed:
        ReadYuvLine(data + 2 * first, width, samples.data());
        break;
    case PixelLayout::Rgb8:
        std::copy_n(data + 3 * first, samples.size(), samples.begin());
        break;
    case PixelLayout::Bgr8:
        for (std::uint32_t x = 0; x < width; ++x) {
            std::reverse_copy(data + 3 * (first + x), data + 3 * (first + x + 1), samples.data() + std::size_t{3} * x);
        }
        break;
    }
}

} // namespace Host
