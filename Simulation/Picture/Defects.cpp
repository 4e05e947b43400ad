#include "Simulation/Picture/Defects.h"

#include "Simulation/M2VX.h"
#include "Simulation/Picture/Filter.h"
#include "Simulation/Picture/Frame.h"
#include "Simulation/Picture/Numbers.h"

#include <algorithm>
#include <tuple>

namespace Simulation::Picture {

std::vector<DefectPixel> DefectPixelsOf(const World& world, std::uint32_t width, std::uint32_t height) {
    const auto draw = [&world](std::uint64_t number, std::uint32_t size) {
        const auto half = static_cast<std::int32_t>(size / 2 - 1);
        return static_cast<std::uint32_t>(half + world.Noise(Stream::DefectPixel, number, half));
    };
    std::vector<DefectPixel> pixels;
    for (std::uint64_t pair = 0; pair < std::uint64_t{width} * height >> 17; ++pair) {
        const std::uint32_t column = draw(2 * pair, width);
        const std::uint32_t line = draw(2 * pair + 1, height);
        pixels.push_back({column, line, true});
        pixels.push_back({column, line + 1, false});
    }
    return pixels;
}

void Defects::Update(const Settings& settings, const World& world) {
    const Readout& readout = settings.readout;
    entries.clear();
    binned = static_cast<std::int32_t>(readout.binningX * readout.binningY);
    channels = readout.color && settings.pixelFormat != raw14 ? 3 : 1;
    for (const DefectPixel& pixel : DefectPixelsOf(world, readout.sensorWidth, readout.sensorHeight)) {
        Add(settings, pixel.column, pixel.line, pixel.isWhite ? Action::Whiten : Action::Blacken);
    }
    if (settings.listed) {
        AddListed(settings);
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
        const auto rank = [](const Entry& entry) {
            return std::tuple(entry.y, entry.action > Action::Blacken, entry.x);
        };
        return rank(left) < rank(right);
    });
}

void Defects::AddListed(const Settings& settings) {
    for (const auto& pixel : factoryDefects) {
        Add(settings, pixel[0], pixel[1], Action::Whiten);
    }
    for (const ListedPixel& pixel : *settings.listed) {
        const Action replace = pixel.mode == 1 ? Action::TakeLeft : Action::TakeMean;
        Add(settings, pixel.column, pixel.line, settings.showsDefects ? Action::Show : replace);
    }
}

void Defects::Add(const Settings& settings, std::uint32_t column, std::uint32_t line, Action action) {
    const Readout& readout = settings.readout;
    // Beyond the frame also for what is before it.
    const std::uint32_t x = column / readout.binningX - readout.offsetX;
    const std::uint32_t y = line / readout.binningY - readout.offsetY;
    if (x < settings.width && y < settings.height) {
        const std::size_t channel = channels == 3 ? FilterAt(column, line) : 0;
        entries.push_back({y, x, x * channels + channel, action});
    }
}

void Defects::Apply(std::uint32_t y, std::vector<std::uint16_t>& line) const {
    auto entry = std::lower_bound(entries.begin(), entries.end(), y,
                                  [](const Entry& each, std::uint32_t wanted) { return each.y < wanted; });
    for (; entry != entries.end() && entry->y == y; ++entry) {
        Act(*entry, line);
    }
}

void Defects::Act(const Entry& entry, std::vector<std::uint16_t>& line) const {
    std::uint16_t& value = line[entry.place];
    const std::uint16_t left = entry.x > 0 ? line[entry.place - channels] : value;
    const std::uint16_t right = entry.place + channels < line.size() ? line[entry.place + channels] : value;
    switch (entry.action) {
    case Action::Whiten:
        value = static_cast<std::uint16_t>((value * (binned - 1) + fullScale) / binned);
        break;
    case Action::Blacken:
        value = static_cast<std::uint16_t>(value * (binned - 1) / binned);
        break;
    case Action::TakeLeft:
        value = entry.x > 0 ? left : right;
        break;
    case Action::TakeMean:
        value = static_cast<std::uint16_t>((left + right) / 2);
        break;
    case Action::Show:
        value = fullScale;
        break;
    }
}

} // namespace Simulation::Picture
