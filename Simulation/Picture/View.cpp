#include "Simulation/Picture/View.h"

#include <algorithm>
#include <array>

namespace Simulation::Picture {

namespace {

/// The tone of each light: its square root, rounded.
const std::vector<std::uint8_t>& ToneOf() {
    static const auto tones = [] {
        std::vector<std::uint8_t> roots(255 * 255 + 1);
        std::uint32_t root = 0;
        for (std::uint32_t i = 0; i < roots.size(); ++i) {
            root += i > root * root + root ? 1 : 0;
            roots[i] = static_cast<std::uint8_t>(root);
        }
        return roots;
    }();
    return tones;
}

} // namespace

void View::Update(const Settings& settings) {
    if (readout == settings.readout && width == settings.width && height == settings.height) {
        return;
    }
    const Scene scene(settings.readout.sensorWidth, settings.readout.sensorHeight);
    readout = settings.readout;
    width = settings.width;
    height = settings.height;
    meanLight = std::max(scene.MeanLight(), 1U);
    columns.resize(std::size_t{width} * readout.binningX);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i] = scene.PlaceOf(std::uint64_t{readout.offsetX} * readout.binningX + i, 0).x;
    }
    lines.resize(std::size_t{height} * readout.binningY);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i] = scene.PlaceOf(0, std::uint64_t{readout.offsetY} * readout.binningY + i).y;
    }
    light.resize(width * Channels());
    marked.resize(width * Channels());
    tones.resize(std::size_t{width} * height * Channels());
    for (std::uint32_t y = 0; y < height; ++y) {
        MakeLine(scene, y);
    }
}

void View::MakeLine(const Scene& scene, std::uint32_t y) {
    const std::size_t channels = Channels();
    std::fill(light.begin(), light.end(), 0);
    for (std::size_t line = std::size_t{y} * readout.binningY; line < std::size_t{y + 1} * readout.binningY; ++line) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const Color color = scene.At({columns[column], lines[line]});
            std::uint32_t* const pixel = &light[column / readout.binningX * channels];
            if (channels == 1) {
                *pixel += LightOf(color);
                continue;
            }
            const std::uint8_t parts[] = {color.red, color.green, color.blue};
            for (std::size_t i = 0; i < channels; ++i) {
                pixel[i] += std::uint32_t{parts[i]} * parts[i];
            }
        }
    }
    const std::uint32_t binned = readout.binningX * readout.binningY;
    const std::vector<std::uint8_t>& toneOf = ToneOf();
    std::transform(light.begin(), light.end(), tones.begin() + static_cast<std::ptrdiff_t>(y * light.size()),
                   [&](std::uint32_t sum) { return toneOf[sum / binned]; });
}

const std::uint8_t* View::Line(std::uint32_t y, const Mark& mark) {
    const std::size_t channels = Channels();
    const std::uint8_t* const line = tones.data() + std::size_t{y} * width * channels;
    const std::int64_t place = lines[(std::size_t{y} * 2 + 1) * readout.binningY / 2];
    if (!mark.TouchesLine(place)) {
        return line;
    }
    const std::uint8_t gray = ToneOf()[LightOf(Mark::color)];
    const std::uint8_t color[] = {Mark::color.red, Mark::color.green, Mark::color.blue};
    std::copy_n(line, marked.size(), marked.begin());
    for (std::size_t x = 0; x < width; ++x) {
        if (mark.Covers({columns[(2 * x + 1) * readout.binningX / 2], place})) {
            std::copy_n(channels == 1 ? &gray : color, channels, &marked[x * channels]);
        }
    }
    return marked.data();
}

} // namespace Simulation::Picture
