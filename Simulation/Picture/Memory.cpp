#include "Simulation/Picture/Memory.h"

#include "Simulation/Picture/Numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace Simulation::Picture {

bool Memory::IsUsed(const MemorySettings& settings) {
    if (!settings.hold) {
        held.clear();
    }
    if (settings.recursion == 0) {
        means.clear();
    }
    return settings.hold || settings.recursion != 0 || settings.store || (settings.subtract && !stored.empty());
}

void Memory::Apply(const MemorySettings& settings, Image& image) {
    if (!held.empty()) {
        image = held;
        return;
    }
    if (settings.recursion != 0) {
        Filter(settings, image);
    }
    if (settings.store) {
        stored = image;
    }
    if (settings.subtract && !stored.empty()) {
        Subtract(image);
    }
    if (settings.hold) {
        held = image;
    }
}

void Memory::Filter(const MemorySettings& settings, Image& image) {
    const std::int32_t moved = (fullScale / 16) << 8;
    const bool isFirst = means.empty();
    means.resize(image.size());
    for (std::size_t i = 0; i < image.size(); ++i) {
        const std::int32_t live = image[i] << 8;
        const std::int32_t step = live - means[i];
        const bool isNew = isFirst || (settings.detectsMotion && std::abs(step) > moved);
        means[i] = isNew ? live : means[i] + (step >> settings.recursion);
        image[i] = static_cast<std::uint16_t>(means[i] >> 8);
    }
}

void Memory::Subtract(Image& image) const {
    for (std::size_t i = 0; i < image.size(); ++i) {
        image[i] = static_cast<std::uint16_t>(std::clamp((fullScale + 1) / 2 + image[i] - stored[i], 0, fullScale));
    }
}

} // namespace Simulation::Picture
