#include "Host/Pictures/Measure.h"

#include <algorithm>
#include <vector>

namespace Host {

Measures Measure(const Picture& picture, const PixelFormat& format, std::uint32_t step) {
    const std::uint32_t width = picture.format.width;
    std::vector<std::uint16_t> line(std::size_t{width} * format.channels);
    std::uint32_t minimum = format.FullScale();
    std::uint32_t maximum = 0;
    std::uint64_t sum = 0;
    std::uint64_t saturated = 0;
    std::uint64_t differences = 0;
    for (std::uint32_t y = 0; y < picture.format.height; y += step) {
        ReadLine(format, picture.bytes, width, y, line);
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::uint32_t sample = line[i];
            minimum = std::min(minimum, sample);
            maximum = std::max(maximum, sample);
            sum += sample;
            saturated += sample == format.FullScale() ? 1U : 0U;
            if (i >= format.channels) {
                const std::uint32_t before = line[i - format.channels];
                differences += std::max(sample, before) - std::min(sample, before);
            }
        }
    }
    const auto perSample = [&](std::uint64_t total, std::uint64_t samples) {
        return samples == 0 ? 0 : static_cast<double>(total) / static_cast<double>(samples);
    };
    const std::uint64_t lines = (std::uint64_t{picture.format.height} + step - 1) / step;
    const std::uint64_t samples = lines * line.size();
    const std::uint64_t pairs = samples - lines * std::min<std::size_t>(line.size(), format.channels);
    return {minimum, maximum, perSample(sum, samples), 100 * perSample(saturated, samples),
            1000 * perSample(differences, pairs) / format.FullScale()};
}

} // namespace Host
