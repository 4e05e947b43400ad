#include "Simulation/Picture/Renderer.h"

#include "Simulation/Picture/Coding.h"
#include "Simulation/Picture/Drawing.h"
#include "Simulation/Picture/Enhancement.h"
#include "Simulation/Picture/Filter.h"
#include "Simulation/Picture/Patterns.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Simulation::Picture {

namespace {

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
    const bool hasOtherFrames = !made || made->pixelFormat != settings.pixelFormat || made->width != settings.width ||
                                made->height != settings.height || made->readout != settings.readout;
    if (hasOtherFrames) {
        memory.Clear();
    }
    view.Update(settings);
    tables.Update(settings, world, view.MeanLight());
    noise.Scale(tables.Deviation(), settings.width * view.Channels());
    defects.Update(settings, world);
    channels = settings.pixelFormat == raw14 ? 1 : view.Channels();
    line.resize(settings.width * channels);
    isCurved = settings.curve != CurveSettings{};
    if (isCurved) {
        curve = CurveOf(settings.curve, {});
    }
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
    const bool usesMemory = memory.IsUsed(settings.memory);
    const bool needsImage = usesMemory || settings.sharpness != 0 || settings.curve.equalization != 0;
    if (needsImage) {
        MakeImage(number, usesMemory);
    }
    for (std::uint32_t y = 0; y < settings.height; ++y) {
        const std::uint32_t source = settings.flipY ? settings.height - 1 - y : y;
        if (needsImage) {
            std::copy_n(&image[source * line.size()], line.size(), line.begin());
        } else {
            MakeLine(source, number);
        }
        FinishLine(y);
        CodeLine(settings.pixelFormat, line, channels, y, frame.bytes);
    }
}

void Renderer::MakeImage(std::uint64_t number, bool usesMemory) {
    image.resize(line.size() * made->height);
    for (std::uint32_t y = 0; y < made->height; ++y) {
        MakeLine(y, number);
        std::copy(line.begin(), line.end(), &image[y * line.size()]);
    }
    if (usesMemory) {
        memory.Apply(made->memory, image);
    }
    if (made->sharpness != 0) {
        Sharpen(made->sharpness, channels, line.size(), image);
    }
    if (made->curve.equalization != 0) {
        curve = CurveOf(made->curve, image);
    }
}

void Renderer::MakeLine(std::uint32_t y, std::uint64_t number) {
    const auto isPattern = [](Pattern pattern) { return pattern != Pattern::None; };
    if (!std::all_of(made->patterns.begin(), made->patterns.end(), isPattern)) {
        MakePixels(y, number);
        defects.Apply(y, line);
        if (made->shading != std::array<std::int32_t, 4>{}) {
            CorrectShading(made->shading, y, made->height, line);
        }
    }
    for (std::size_t half = 0; half < made->patterns.size(); ++half) {
        if (isPattern(made->patterns.at(half))) {
            MakePattern(y, half);
        }
    }
    if (channels == 3 && made->saturation != 128) {
        Saturate(line, made->saturation);
    }
}

void Renderer::FinishLine(std::uint32_t y) {
    if (isCurved) {
        std::transform(line.begin(), line.end(), line.begin(), [this](std::uint16_t value) { return curve[value]; });
    }
    if (made->flipX) {
        Mirror(line, channels);
    }
    if (made->drawing != DrawingSettings{}) {
        DrawLine(made->drawing, y, channels, line);
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
            const std::size_t channel = FilterAt(readout.offsetX + x, row);
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
            const std::size_t channel = isRaw ? FilterAt(made->readout.offsetX + x, made->readout.offsetY + y) : 0;
            line[x] = tables.OfPattern(channel)[values.at(channel)];
        }
    }
}

} // namespace Simulation::Picture
