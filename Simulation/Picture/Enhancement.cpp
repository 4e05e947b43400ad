#include "Simulation/Picture/Enhancement.h"

#include "Simulation/Picture/Numbers.h"

#include <algorithm>

namespace Simulation::Picture {

namespace {

std::uint16_t Within(std::int64_t value) {
    return static_cast<std::uint16_t>(std::clamp<std::int64_t>(value, 0, fullScale));
}

} // namespace

void Saturate(std::span<std::uint16_t> line, std::uint32_t saturation) {
    const auto factor = static_cast<std::int32_t>(saturation);
    const auto saturate = [factor](std::int32_t value, std::int32_t gray) {
        return static_cast<std::uint16_t>(std::clamp(gray + ((value - gray) * factor >> 7), 0, fullScale));
    };
    std::uint16_t* const end = line.data() + line.size();
    for (std::uint16_t* pixel = line.data(); pixel != end; pixel += 3) {
        const std::int32_t gray = (77 * pixel[0] + 150 * pixel[1] + 29 * pixel[2]) >> 8;
        pixel[0] = saturate(pixel[0], gray);
        pixel[1] = saturate(pixel[1], gray);
        pixel[2] = saturate(pixel[2], gray);
    }
}

void CorrectShading(const std::array<std::int32_t, 4>& corners, std::uint32_t y, std::uint32_t height,
                    std::span<std::uint16_t> line) {
    const auto middle = static_cast<std::int64_t>(line.size() / 2);
    const std::int64_t half = std::max<std::int64_t>(height / 2, 1);
    const std::int64_t down = std::int64_t{y} - half;
    const std::int64_t corner = middle * middle + half * half;
    for (std::size_t x = 0; x < line.size(); ++x) {
        const std::int64_t across = static_cast<std::int64_t>(x) - middle;
        const std::int64_t added = corners.at((down < 0 ? 0U : 2U) + (across < 0 ? 0U : 1U));
        line[x] = Within(line[x] + line[x] * added * (across * across + down * down) / (256 * corner));
    }
}

void Sharpen(std::uint32_t sharpness, std::size_t channels, std::size_t lineSize, std::vector<std::uint16_t>& image) {
    const std::vector<std::uint16_t> soft = image;
    const auto factor = static_cast<std::int32_t>(sharpness);
    const auto sharpen = [&](std::size_t i, std::size_t left, std::size_t right) {
        const std::uint16_t above = soft[i < lineSize ? i : i - lineSize];
        const std::uint16_t below = soft[i + lineSize < soft.size() ? i + lineSize : i];
        const std::int32_t neighbours = above + below + soft[left] + soft[right];
        image[i] = Within(soft[i] + (4 * soft[i] - neighbours) * factor / 256);
    };
    for (std::size_t first = 0; first < soft.size(); first += lineSize) {
        const std::size_t last = first + lineSize;
        for (std::size_t i = first; i < last; ++i) {
            sharpen(i, i < first + channels ? i : i - channels, i + channels < last ? i + channels : i);
        }
    }
}

namespace {

using Curve = std::vector<std::uint16_t>;

std::uint16_t Contrasted(std::int32_t value, const CurveSettings& settings) {
    const std::int32_t middle = 8192;
    const auto contrast = static_cast<std::int32_t>(settings.contrast);
    return Within(middle + (value - middle) * contrast / 64 + static_cast<std::int32_t>(settings.brightness));
}

/// Index 12 is the square root, -8 the square, 0 the value itself; the others lie between.
std::uint16_t WithGamma(std::int32_t value, std::int32_t index) {
    const auto root = static_cast<std::int32_t>(SquareRoot(static_cast<std::uint64_t>(value) * fullScale));
    const std::int32_t square = value * value / fullScale;
    return Within(index > 0 ? value + (root - value) * index / 12 : value + (square - value) * -index / 8);
}

/// How many of an image are not greater, by values; the last is how many there are.
std::vector<std::int64_t> CountsOf(std::span<const std::uint16_t> image, const Curve& curve) {
    std::vector<std::int64_t> counts(fullScale + 1);
    for (const std::uint16_t value : image) {
        ++counts[curve[value]];
    }
    for (std::size_t i = 1; i < counts.size(); ++i) {
        counts[i] += counts[i - 1];
    }
    return counts;
}

/// Mode 1 stretches all but the darkest and the lightest 1/256 to the full scale, mode 2 makes all values as frequent,
/// mode 3 goes half of that way.
void Equalize(std::uint32_t mode, std::span<const std::uint16_t> image, Curve& curve) {
    const std::vector<std::int64_t> counts = CountsOf(image, curve);
    const std::int64_t all = std::max<std::int64_t>(counts.back(), 1);
    const auto find = [&](std::int64_t count) {
        return std::upper_bound(counts.begin(), counts.end() - 1, count) - counts.begin();
    };
    const std::int64_t dark = find(all / 256);
    const std::int64_t range = std::max<std::int64_t>(find(all - all / 256) - dark, 1);
    for (std::uint16_t& value : curve) {
        const std::int64_t even = counts[value] * fullScale / all;
        const std::int64_t stretched = (value - dark) * fullScale / range;
        value = Within(mode == 1 ? stretched : mode == 2 ? even : (value + even) / 2);
    }
}

} // namespace

Curve CurveOf(const CurveSettings& settings, std::span<const std::uint16_t> image) {
    const bool isAutomatic = settings.equalization == 1 || settings.equalization == 2;
    Curve curve(fullScale + 1);
    for (std::int32_t value = 0; value <= fullScale; ++value) {
        curve[static_cast<std::size_t>(value)] =
            isAutomatic ? static_cast<std::uint16_t>(value) : Contrasted(value, settings);
    }
    if (settings.equalization != 0) {
        Equalize(settings.equalization, image, curve);
    }
    for (std::uint16_t& value : curve) {
        const std::uint16_t lit = WithGamma(value, settings.gamma);
        value = static_cast<std::uint16_t>(settings.negative ? fullScale - lit : lit);
    }
    return curve;
}

} // namespace Simulation::Picture
