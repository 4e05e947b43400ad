#include "Simulation/Picture/Light.h"

#include "Simulation/Orvik.h"
#include "Simulation/Picture/Frame.h"

#include <algorithm>

namespace Simulation::Picture {

namespace {

constexpr std::int32_t lastTone = 255 * Tables::steps;
constexpr std::uint64_t neutral = 128; // of balances

std::uint16_t Bounded(std::uint64_t value) {
    return static_cast<std::uint16_t>(std::min<std::uint64_t>(value, fullScale));
}

} // namespace

Noise::Noise(const World& world) : drawn(size) {
    for (std::size_t i = 0; i < size; ++i) { // the sum of several is nearly normal
        std::int32_t sum = 0;
        for (std::size_t part = 0; part < 4; ++part) {
            sum += world.Noise(Stream::PictureNoise, 4 * i + part, 127);
        }
        drawn[i] = static_cast<std::int16_t>(sum);
    }
}

void Noise::Scale(std::uint32_t deviation, std::size_t lineSize) {
    const std::int32_t drawnDeviation = 147;
    const auto factor = static_cast<std::int32_t>(std::min(deviation, 590U)); // so that the peak is kept
    scaled.resize(size + lineSize);
    for (std::size_t i = 0; i < scaled.size(); ++i) {
        scaled[i] = static_cast<std::int16_t>(drawn[i % size] * factor / drawnDeviation);
    }
}

const std::int16_t* Noise::Line(const World& world, std::uint64_t frame, std::uint64_t line, std::size_t first) const {
    const std::int32_t half = size / 2 - 1;
    const std::int32_t start = half + world.Noise(Stream::PictureLine, (frame << 20) + line, half);
    return &scaled[(static_cast<std::size_t>(start) + first) % size];
}

Tables::Tables() {
    for (auto& channel : tones) {
        channel.resize(lastTone + 2 * Noise::peak + 1);
    }
    for (auto& channel : values) {
        channel.resize(fullScale + 1);
    }
}

void Tables::Update(const Settings& settings, const World& world, std::uint32_t meanLight) {
    // So great that all is white, and small enough for the products.
    const std::uint64_t greatestLevel = std::uint64_t{1} << 32;
    const std::uint64_t level = std::min(settings.level, greatestLevel) * world.Illumination() / 100;
    const Words lamp = settings.readout.color ? WhiteBalanceOf(settings.lightSource, world) : Words(3, neutral);
    const bool isRaw = settings.pixelFormat == raw14;
    for (std::size_t channel = 0; channel < tones.size(); ++channel) {
        // What is done to the values of a channel one by one. A lamp's colour does not clip before the balance takes it
        // back: the sensor has room for more than 14 bits.
        const std::uint64_t balance = isRaw ? neutral : settings.balance.at(channel);
        const auto process = [=](std::uint64_t value, std::uint64_t white) { return Bounded(value * balance / white); };
        for (std::uint64_t value = 0; value < values[channel].size(); ++value) {
            values[channel][value] = process(value, neutral);
        }
        for (std::size_t i = 0; i < tones[channel].size(); ++i) {
            const auto tone = static_cast<std::uint64_t>(std::max(static_cast<std::int32_t>(i) - Noise::peak, 0));
            const std::uint64_t light = level * (tone * tone) / (std::uint64_t{256} * steps * steps * meanLight);
            tones[channel][i] = process(light, lamp[channel]);
        }
    }
    // A full pixel has some 20000 electrons, whose number varies by its root. A root's variation is half of that of its
    // square.
    const std::uint64_t white = std::max<std::uint64_t>(level * 255 * 255 / (std::uint64_t{256} * meanLight), 1);
    const std::uint64_t half = lastTone / 2;
    deviation = static_cast<std::uint32_t>(SquareRoot(half * half * settings.gain * fullScale / (256 * white * 20000)));
}

} // namespace Simulation::Picture
