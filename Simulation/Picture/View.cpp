#include "Simulation/Picture/View.h"

#include <algorithm>

namespace Simulation::Picture {

namespace {

/// What a pixel of a monochrome sensor, or of one with colour filters, sees of a colour.
void See(Color color, std::size_t channels, std::uint8_t* tones) {
    if (channels == 1) {
        *tones = ToneOf(LightOf(color));
    } else {
        tones[0] = color.red;
        tones[1] = color.green;
        tones[2] = color.blue;
    }
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
    const std::size_t binningX = readout.binningX;
    const std::size_t binningY = readout.binningY;
    columns.resize(width * binningX);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i] = scene.PlaceOf(readout.offsetX * binningX + i, 0).x;
    }
    lines.resize(height * binningY);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i] = scene.PlaceOf(0, readout.offsetY * binningY + i).y;
    }
    light.resize(width * Channels());
    marked.resize(width * Channels());
    tones.resize(std::size_t{width} * height * Channels());
    for (std::uint32_t y = 0; y < height; ++y) {
        std::uint8_t* const line = tones.data() + std::size_t{y} * width * Channels();
        if (readout.binningX * readout.binningY == 1) {
            MakeLine(scene, y, line);
        } else {
            MakeBinnedLine(scene, y, line);
        }
    }
}

void View::MakeLine(const Scene& scene, std::uint32_t y, std::uint8_t* line) const {
    const std::size_t channels = Channels();
    for (std::size_t x = 0; x < width; ++x) {
        See(scene.At({columns[x], lines[y]}), channels, line + x * channels);
    }
}

/// A pixel has the mean of the light of those that are binned, so that a picture stays as bright as it was.
void View::MakeBinnedLine(const Scene& scene, std::uint32_t y, std::uint8_t* line) {
    const std::size_t channels = Channels();
    const std::size_t first = static_cast<std::size_t>(y) * readout.binningY;
    std::fill(light.begin(), light.end(), 0);
    for (std::size_t i = first; i < first + readout.binningY; ++i) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            std::uint8_t seen[3];
            See(scene.At({columns[column], lines[i]}), channels, seen);
            for (std::size_t channel = 0; channel < channels; ++channel) {
                const std::uint32_t tone = seen[channel];
                light[column / readout.binningX * channels + channel] += tone * tone;
            }
        }
    }
    const std::uint32_t binned = readout.binningX * readout.binningY;
    std::transform(light.begin(), light.end(), line, [=](std::uint32_t sum) { return ToneOf(sum / binned); });
}

const std::uint8_t* View::Line(std::uint32_t y, const Mark& mark) {
    const std::size_t channels = Channels();
    const std::uint8_t* const line = tones.data() + std::size_t{y} * width * channels;
    const std::int64_t place = lines[(std::size_t{y} * 2 + 1) * readout.binningY / 2];
    if (!mark.TouchesLine(place)) {
        return line;
    }
    std::copy_n(line, marked.size(), marked.begin());
    for (std::size_t x = 0; x < width; ++x) {
        if (mark.Covers({columns[(2 * x + 1) * readout.binningX / 2], place})) {
            See(Mark::color, channels, &marked[x * channels]);
        }
    }
    return marked.data();
}

} // namespace Simulation::Picture
