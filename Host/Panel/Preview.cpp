#include "Host/Panel/Preview.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>

namespace Host::Panel {

namespace {

constexpr int quality = 85;
constexpr std::uint32_t largestSide = 4096; ///< of what a client gets
constexpr std::size_t surveyed = 1'000'000; ///< samples of a survey

/// The size of an area reduced to a room.
std::pair<std::uint32_t, std::uint32_t> Reduced(const Area& area, const PictureView& view) {
    const double width = std::clamp(view.width, 1U, largestSide);
    const double height = std::clamp(view.height, 1U, largestSide);
    const double factor = std::min({1.0, width / area.width, height / area.height});
    const auto side = [&](std::uint32_t whole) {
        return std::max(1U, static_cast<std::uint32_t>(std::lround(whole * factor)));
    };
    return {side(area.width), side(area.height)};
}

/// Reduces lines of a picture to 8 bits. Each pixel is the mean of what it covers in two lines, or in one.
class Reducer {
public:
    Reducer(const Picture& reduced, const PixelFormat& itsFormat, const Area& part, std::uint32_t columns,
            std::uint32_t lines)
        : picture(reduced),
          format(itsFormat),
          area(part),
          width(columns),
          height(lines),
          line(std::size_t{reduced.format.width} * itsFormat.channels),
          sums(std::size_t{columns} * itsFormat.channels) {}

    /// Line @p y of the result.
    void Fill(std::uint32_t y, unsigned char* target) {
        const std::uint32_t first = Source(y, area.height, height);
        const std::uint32_t end = std::max(first + 1, Source(y + 1, area.height, height));
        std::fill(sums.begin(), sums.end(), 0);
        Add(area.top + first);
        Add(area.top + (first + end) / 2); // the same one, if the picture is not reduced
        for (std::uint32_t x = 0; x < width; ++x) {
            const std::uint64_t count = std::uint64_t{2} * (End(x) - Source(x, area.width, width));
            for (std::size_t channel = 0; channel < format.channels; ++channel) {
                const std::size_t i = std::size_t{x} * format.channels + channel;
                target[i] = static_cast<unsigned char>(sums[i] / count >> (format.bits - 8));
            }
        }
    }

private:
    static std::uint32_t Source(std::uint32_t index, std::uint32_t whole, std::uint32_t reduced) {
        return static_cast<std::uint32_t>(std::uint64_t{index} * whole / reduced);
    }
    [[nodiscard]] std::uint32_t End(std::uint32_t x) const {
        return std::max(Source(x, area.width, width) + 1, Source(x + 1, area.width, width));
    }

    void Add(std::uint32_t y) {
        ReadLine(format, picture.bytes, picture.format.width, y, line);
        const std::size_t channels = format.channels;
        for (std::uint32_t x = 0; x < width; ++x) {
            const std::size_t end = (area.left + End(x)) * channels;
            for (std::size_t i = (area.left + Source(x, area.width, width)) * channels; i < end; i += channels) {
                for (std::size_t channel = 0; channel < channels; ++channel) {
                    sums[x * channels + channel] += line[i + channel];
                }
            }
        }
    }

    const Picture& picture;
    const PixelFormat& format;
    Area area;
    std::uint32_t width;
    std::uint32_t height;
    std::vector<std::uint16_t> line;
    std::vector<std::uint64_t> sums;
};

} // namespace

Area AreaOf(const PictureView& view, const PictureFormat& format) {
    const Area whole{0, 0, format.width, format.height};
    if (!view.area) {
        return whole;
    }
    Area area{std::min(view.area->left, whole.width - 1), std::min(view.area->top, whole.height - 1), 0, 0};
    area.width = std::clamp(view.area->width, 1U, whole.width - area.left);
    area.height = std::clamp(view.area->height, 1U, whole.height - area.top);
    return area;
}

std::string EncodePreview(const Picture& picture, const PixelFormat& format, const PictureView& view) {
    const Area area = AreaOf(view, picture.format);
    const auto [width, height] = Reduced(area, view);
    Reducer reducer(picture, format, area, width, height);
    const std::size_t stride = std::size_t{width} * format.channels;
    std::vector<unsigned char> pixels(stride * height);
    for (std::uint32_t y = 0; y < height; ++y) {
        reducer.Fill(y, pixels.data() + y * stride);
    }
    const std::unique_ptr<void, decltype(&tjDestroy)> encoder(tjInitCompress(), &tjDestroy);
    unsigned char* encoded = nullptr;
    unsigned long size = 0;
    const bool isGrey = format.channels == 1;
    const int failed = tjCompress2(encoder.get(), pixels.data(), static_cast<int>(width), static_cast<int>(stride),
                                   static_cast<int>(height), isGrey ? TJPF_GRAY : TJPF_RGB, &encoded, &size,
                                   isGrey ? TJSAMP_GRAY : TJSAMP_422, quality, TJFLAG_FASTDCT);
    const std::unique_ptr<unsigned char, decltype(&tjFree)> owner(encoded, &tjFree);
    if (failed != 0) {
        throw std::runtime_error(std::string("the picture cannot be encoded as JPEG: ") +
                                 tjGetErrorStr2(encoder.get()));
    }
    return {reinterpret_cast<const char*>(encoded), size};
}

Survey SurveyOf(const Picture& picture, const PixelFormat& format) {
    const std::size_t samples = std::size_t{picture.format.width} * picture.format.height * format.channels;
    const auto step = static_cast<std::uint32_t>(std::max<std::size_t>(samples / surveyed, 1));
    Survey survey{Measure(picture, format, step), {}};
    survey.histogram.resize(format.channels);
    std::vector<std::uint16_t> line(std::size_t{picture.format.width} * format.channels);
    const unsigned int shift = format.bits - 6; // to 64 bins
    for (std::uint32_t y = 0; y < picture.format.height; y += step) {
        ReadLine(format, picture.bytes, picture.format.width, y, line);
        for (std::size_t i = 0; i < line.size(); ++i) {
            ++survey.histogram[i % format.channels][line[i] >> shift];
        }
    }
    return survey;
}

std::vector<std::uint16_t> SamplesAt(const Picture& picture, const PixelFormat& format, std::uint32_t x,
                                     std::uint32_t y) {
    if (x >= picture.format.width || y >= picture.format.height) {
        return {};
    }
    std::vector<std::uint16_t> line(std::size_t{picture.format.width} * format.channels);
    ReadLine(format, picture.bytes, picture.format.width, y, line);
    const auto first = line.begin() + static_cast<std::ptrdiff_t>(std::size_t{x} * format.channels);
    return {first, first + format.channels};
}

} // namespace Host::Panel
