#include "Simulation/Picture/Measuring.h"

#include "Simulation/Picture/Scene.h"

#include <algorithm>

namespace Simulation::Picture {

std::uint32_t RelativeLight(const Disc& part, std::uint32_t size) {
    static const std::uint64_t mean = Scene(size, size).MeanLight(); // there is one size of square sensors
    const Scene scene(size, size);
    const std::int64_t samples = 24; // each way
    std::uint64_t sum = 0;
    std::uint64_t count = 0;
    for (std::int64_t i = 0; i < samples * samples; ++i) {
        const std::int64_t x = part.x + part.across * (2 * (i % samples) + 1 - samples) / samples;
        const std::int64_t y = part.y + part.down * (2 * (i / samples) + 1 - samples) / samples;
        if (x >= 0 && y >= 0 && x < size && y < size && part.Contains(x, y)) {
            sum += LightOf(scene.At(scene.PlaceOf(static_cast<std::uint64_t>(x), static_cast<std::uint64_t>(y))));
            ++count;
        }
    }
    return static_cast<std::uint32_t>(100 * sum / std::max<std::uint64_t>(count * mean, 1));
}

} // namespace Simulation::Picture
