#include "Simulation/Picture/Renderer.h"

#include "Simulation/Picture/Coding.h"
#include "Simulation/Picture/Patterns.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Simulation::Picture {

namespace {

/// The channel that a sensor with colour filters has at a place: green and red, below them blue and green.
std::size_t Filter(std::uint64_t column, std::uint64_t row) {
    const std::size_t filters[2][2] = {{1, 0}, {2, 1}};
    return filters[row % 2][column % 2];
}

void Saturate(std::vector<std::uint16_t>& line, std::uint32_t saturation) {
    const auto factor = static_cast<std::int32_t>(saturation);
    const auto saturate = [factor](std::int32_t value, std::int32_t gray) {
        return static_cast<std::uint16_t>(std::clamp(gray + ((value - gray) * factor >> 7), 0, Tables::fullScale));
    };
    std::uint16_t* const end = line.data() + line.size();
    for (std::uint16_t* pixel = line.data(); pixel != end; pixel += 3) {
        const std::int32_t gray = (77 * pixel[0] + 150 * pixel[1] + 29 * pixel[2]) >> 8;
        pixel[0] = saturate(pixel[0], gray);
        pixel[1] = saturate(pixel[1], gray);
        pixel[2] = saturate(pixel[2], gray);
    }
}

void Mirror(std::vector<std::uint16_t>& line, std::size_t channels) {
    const std::size_t count = line.size() / channels;
    for (std::size_t x = 0; x < count / 2; ++x) {
        std::swap_ranges(&line[x * channels], &line[x * channels] + channels, &line[(count - 1 - x) * channels]);
    }
}

} // namespace

void Renderer::Update(const Settings& settings) {
    if (made == settings) {
        return;
    }
    view.Update(settings);
    tables.Update(settings, world, view.MeanLight());
    noise.Scale(tables.Deviation(), settings.width * view.Channels());
    channels = settings.pixelFormat == raw14 ? 1 : view.Channels();
    line.resize(settings.width * channels);
    made = settings;
}

void Renderer::Render(const Settings& settings, std::uint64_t number, Frame& frame) {
    Update(settings);
    frame.pixelFormat = settings.pixelFormat;
    frame.width = settings.width;
    frame.height = settings.height;
    frame.offsetX = settings.readout.offsetX;
    frame.offsetY = settings.readout.offsetY;
    frame.bytes.resize(PayloadSize(settings.pixelFormat, settings.width, settings.height));
    for (std::uint32_t y = 0; y < settings.height; ++y) {
        MakeLine(settings.flipY ? settings.height - 1 - y : y, number);
        CodeLine(settings.pixelFormat, line, channels, y, frame.bytes);
    }
}

void Renderer::MakeLine(std::uint32_t y, std::uint64_t number) {
    const auto isPattern = [](Pattern pattern) { return pattern != Pattern::None; };
    if (!std::all_of(made->patterns.begin(), made->patterns.end(), isPattern)) {
        MakePixels(y, number);
    }
    for (std::size_t half = 0; half < made->patterns.size(); ++half) {
        if (isPattern(made->patterns.at(half))) {
            MakePattern(y, half);
        }
    }
    if (channels == 3 && made->saturation != 128) {
        Saturate(line, made->saturation);
    }
    if (made->flipX) {
        Mirror(line, channels);
    }
}

void Renderer::MakePixels(std::uint32_t y, std::uint64_t number) {
    const Readout& readout = made->readout;
    const std::uint8_t* const tones = view.Line(y, Mark(number));
    // Counted in the sensor, so that a part of it has the noise that it has in the whole.
    const std::uint64_t row = readout.offsetY + static_cast<std::uint64_t>(y);
    const std::int16_t* const added = noise.Line(world, number, row, readout.offsetX * view.Channels());
    std::uint16_t* const values = line.data();
    const std::array tablesOf{tables.Of(0), tables.Of(1), tables.Of(2)};
    const auto value = [=](std::size_t channel, std::size_t i) {
        return tablesOf[channel][tones[i] * Tables::steps + added[i]];
    };
    if (view.Channels() == 1) {
        for (std::size_t x = 0, width = line.size(); x < width; ++x) {
            values[x] = value(0, x);
        }
    } else if (channels == 1) { // raw
        for (std::size_t x = 0, width = line.size(); x < width; ++x) {
            const std::size_t channel = Filter(readout.offsetX + x, row);
            values[x] = value(channel, 3 * x + channel);
        }
    } else {
        for (std::size_t i = 0, size = line.size(); i != size; i += 3) {
            values[i] = value(0, i);
            values[i + 1] = value(1, i + 1);
            values[i + 2] = value(2, i + 2);
        }
    }
}

void Renderer::MakePattern(std::uint32_t y, std::size_t half) {
    const PatternDrawer drawer(made->width, made->height);
    const Pattern pattern = made->patterns.at(half);
    const std::uint32_t middle = made->width / 2;
    const std::uint32_t begin = half == 0 ? 0 : middle;
    const std::uint32_t end = half == 0 ? middle : made->width;
    for (std::uint32_t x = begin; x < end; ++x) {
        const PatternDrawer::Values values = drawer.At(pattern, x, y);
        if (channels == 3) {
            for (std::size_t i = 0; i < 3; ++i) {
                line[3 * std::size_t{x} + i] = tables.OfPattern(i)[values[i]];
            }
        } else {
            const bool isRaw = made->pixelFormat == raw14;
            const std::size_t channel = isRaw ? Filter(made->readout.offsetX + x, made->readout.offsetY + y) : 0;
            line[x] = tables.OfPattern(channel)[values.at(channel)];
        }
    }
}

} // namespace Simulation::Picture
