// What simulated cameras see, as bytes.

#include "Simulation/Picture/Renderer.h"
#include "Tests/Scenario/Simulated.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace Scenario {

namespace {

using Simulation::Bytes;
using Simulation::Picture::Frame;

constexpr std::uint32_t exposure = 0x0A030000, binning = 0x0A0B0000, gain = 0x14010000, lightSource = 0x15020000,
                        saturation = 0x15040000, colorCoding = 0x28020000, readoutArea = 0x28050000,
                        automaticGain = 0x46020000, awb = 0x46040000, pattern = 0x5A010000;

/// A camera, and somebody who looks at its frames.
class Photographed : public Simulated {
public:
    explicit Photographed(const char* model, std::uint64_t seed = 0)
        : Simulated(model, seed),
          renderer(Simulation::World(seed)) {}

    /// With a readout area that shows one end of the steps of gray, and a bit of the ramp.
    static Photographed OfSteps(const char* model, std::uint64_t seed = 0) {
        Photographed photographed(model, seed);
        photographed.Write(readoutArea, {640, 1580, 640 + 255, 1580 + 63});
        return photographed;
    }

    const Frame& Shoot(std::uint64_t number = 1) {
        renderer.Render(Simulation::Picture::SettingsOf(camera->Registers()), number, frame);
        return frame;
    }
    /// The mean of every byte, or of every third.
    double Mean(std::size_t first = 0, std::size_t step = 1) {
        const Bytes& bytes = Shoot().bytes;
        double sum = 0;
        for (std::size_t i = first; i < bytes.size(); i += step) {
            sum += bytes[i];
        }
        return sum * static_cast<double>(step) / static_cast<double>(bytes.size());
    }

private:
    Simulation::Picture::Renderer renderer;
    Frame frame;
};

std::uint64_t HashOf(const Bytes& bytes) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const std::uint8_t byte : bytes) {
        hash = (hash ^ byte) * 0x100000001B3;
    }
    return hash;
}

std::uint32_t Word(const Bytes& bytes, std::size_t pixel) { return bytes[2 * pixel] + 256U * bytes[2 * pixel + 1]; }

} // namespace

TEST(SimulatedPicture, IsTheSameInEveryBuildForItsSeedAndNumber) {
    const struct {
        const char* model;
        std::uint32_t coding, pixelFormat;
        std::size_t size;
        std::uint64_t hash;
    } rows[] = {
        // clang-format off
        {"Orvik-710M",   0, 0x01080001, 16384, 0x62ECC9A76AC7E469},
        {"Orvik-710M",   6, 0x01100025, 32768, 0xBE89325FCE06321E},
        {"Orvik-710M",  14, 0x010C0006, 24576, 0x9D16391577BFBFE0},
        {"Orvik-710C",  52, 0x0210001F, 32768, 0x662FB5B44BA11039},
        {"Orvik-710C", 110, 0x02180014, 49152, 0xDD20757C7E4DCBD2},
        {"Orvik-710C", 111, 0x02180015, 49152, 0xCEDBA8BE01D67D66},
        {"Orvik-710C", 153, 0x82100025, 32768, 0xEB941CD24CEF7787},
        // clang-format on
    };
    for (const auto& row : rows) {
        const auto shoot = [&](std::uint64_t seed, std::uint64_t number) {
            auto camera = Photographed::OfSteps(row.model, seed);
            camera.Write(colorCoding, {row.coding});
            EXPECT_EQ(camera.Shoot(number).pixelFormat, row.pixelFormat);
            EXPECT_EQ(camera.Shoot(number).bytes.size(), row.size);
            return HashOf(camera.Shoot(number).bytes);
        };
        EXPECT_EQ(shoot(4, 5), row.hash) << row.model << ' ' << row.coding;
        EXPECT_NE(shoot(5, 5), row.hash);
        EXPECT_NE(shoot(4, 6), row.hash);
    }
    EXPECT_EQ(HashOf(Photographed("Sollux G", 4).Shoot(5).bytes), 0x6C68B4B4BBF9E9E7U);
}

TEST(SimulatedPicture, IsBrighterWithExposureAndGain) {
    auto camera = Photographed::OfSteps("Orvik-390M");
    camera.Write(exposure, {0, 5000});
    const double dark = camera.Mean();
    camera.Write(exposure, {1, 1000});
    EXPECT_NEAR(camera.Mean() / dark, 2, 0.05);
    camera.Write(exposure, {0, 5000});
    camera.Write(gain, {256});
    EXPECT_NEAR(camera.Mean() / dark, 3, 0.05);
    camera.Write(exposure, {7, 0xFFFFFFFF});
    EXPECT_GT(camera.Mean(), 200);
    camera.Write(exposure, {0, 0});
    EXPECT_EQ(camera.Mean(), 0);
}

TEST(SimulatedPicture, ComesToTheLevelOfTheAutomaticModes) {
    for (const std::uint64_t seed : {0UL, 1UL, 2UL}) {
        for (const std::uint32_t mode : {0x46010000U, automaticGain}) {
            Photographed camera("Orvik-390M", seed);
            camera.Write(exposure, {0, 12000});
            camera.Write(mode, {1});
            camera.Advance(1s);
            EXPECT_NEAR(camera.Mean(), 128, 0.03 * 128) << seed;
        }
        Photographed camera("Sollux G", seed);
        camera.Write(automaticGain, {2});
        camera.Advance(1s);
        EXPECT_NEAR((camera.Mean(1, 2) * 256 + camera.Mean(0, 2)) / 16383, 0.30, 0.03 * 0.30) << seed;
    }
}

TEST(SimulatedPicture, ShowsTheAreaThatIsReadOut) {
    Photographed camera("Orvik-390M"); // 2256 x 1728
    const Bytes whole = camera.Shoot().bytes;
    camera.Write(readoutArea, {1001, 1200, 1001 + 99, 1200 + 79});
    const Bytes part = camera.Shoot().bytes;
    ASSERT_EQ(part.size(), 8000U);
    for (std::size_t i = 0; i < part.size(); ++i) {
        ASSERT_EQ(part[i], whole[(1200 + i / 100) * 2256 + 1001 + i % 100]) << i;
    }

    Photographed binned("Orvik-390M");
    const double mean = binned.Mean();
    binned.Write(binning, {4, 2});
    EXPECT_EQ(binned.Shoot().bytes.size(), 564U * 864);
    EXPECT_NEAR(binned.Mean(), mean, 1);
}

TEST(SimulatedPicture, IsTheSameInEveryCoding) {
    auto camera = Photographed::OfSteps("Orvik-710C");
    camera.Write(readoutArea, {901, 461, 901 + 63, 461 + 63}); // from a patch of one colour to the next
    const auto shoot = [&camera](std::uint32_t coding) {
        camera.Write(colorCoding, {coding});
        return camera.Shoot().bytes;
    };
    const Bytes rgb = shoot(110), bgr = shoot(111), raw = shoot(153), yuv = shoot(52), mono8 = shoot(0),
                mono14 = shoot(6), packed = shoot(14);
    for (std::size_t i = 0; i < 64UL * 64; ++i) {
        const std::uint8_t red = rgb[3 * i], green = rgb[3 * i + 1], blue = rgb[3 * i + 2];
        ASSERT_NEAR(mono8[i], 0.30 * red + 0.59 * green + 0.11 * blue, 2) << i;
        ASSERT_EQ(Bytes(&bgr[3 * i], &bgr[3 * i] + 3), (Bytes{blue, green, red})) << i;
        const std::uint8_t filtered[] = {green, red, blue, green};
        ASSERT_EQ(Word(raw, i) >> 6, filtered[(461 + i / 64) % 2 * 2 + (901 + i) % 2]) << i;
        ASSERT_EQ(Word(mono14, i) >> 6, mono8[i]) << i;
        const std::uint8_t* const pair = &packed[i / 2 * 3];
        const std::uint32_t twelve = i % 2 == 0 ? pair[0] * 16U + pair[1] % 16U : pair[2] * 16U + pair[1] / 16U;
        ASSERT_EQ(Word(mono14, i) >> 2, twelve) << i;
        ASSERT_EQ(yuv[2 * i + 1], mono8[i]) << i;
        if (i % 2 == 0) { // two pixels share their colour
            const double blueness = (blue + rgb[3 * i + 5] - mono8[i] - mono8[i + 1]) / 2.0;
            const double redness = (red + rgb[3 * i + 3] - mono8[i] - mono8[i + 1]) / 2.0;
            ASSERT_NEAR(yuv[2 * i] - 128, 0.564 * blueness, 2) << i;
            ASSERT_NEAR(yuv[2 * i + 2] - 128, 0.713 * redness, 2) << i;
        }
    }
}

TEST(SimulatedPicture, HasAMarkThatMoves) {
    Photographed camera("Orvik-390M");
    const Bytes first = camera.Shoot(10).bytes, second = camera.Shoot(11).bytes;
    std::size_t moved = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        if (std::abs(first[i] - second[i]) > 30) {
            ++moved;
            ASSERT_TRUE(i / 2256 > 1430 && i / 2256 < 1550) << i; // the lines of its track
        }
    }
    EXPECT_GT(moved, 200U);
}

TEST(SimulatedPicture, IsBalancedAndSaturated) {
    auto camera = Photographed::OfSteps("Orvik-710C", 3);
    const auto isGray = [&](double tolerance) {
        const double green = camera.Mean(1, 3);
        return std::abs(camera.Mean(0, 3) / green - 1) < tolerance &&
               std::abs(camera.Mean(2, 3) / green - 1) < tolerance;
    };
    camera.Write(lightSource, {1});
    EXPECT_GT(camera.Mean(0, 3) / camera.Mean(2, 3), 1.2); // red
    camera.Write(awb, {1});
    camera.Advance(1s);
    EXPECT_TRUE(isGray(0.02));

    camera.Write(readoutArea, {1250, 320, 1250 + 63, 320 + 63}); // within coloured patches
    const std::array colors{camera.Mean(0, 3), camera.Mean(1, 3), camera.Mean(2, 3)};
    camera.Write(saturation, {64});
    EXPECT_NEAR(camera.Mean(0, 3) - camera.Mean(2, 3), (colors[0] - colors[2]) / 2, 2);
}

TEST(SimulatedPicture, IsReplacedByTestPatterns) {
    Photographed mono("Orvik-390M");
    mono.Write(readoutArea, {100, 100, 355, 228});
    mono.Write(pattern, {1});
    EXPECT_EQ(mono.Shoot().bytes[128 * 256 + 77], 77);
    mono.Write(pattern, {2});
    EXPECT_EQ(mono.Shoot().bytes[64 * 256 + 77], 127); // half way down
    mono.Write(pattern, {3});
    EXPECT_EQ(mono.Shoot().bytes[63 * 256 + 63], 255);
    EXPECT_EQ(mono.Shoot().bytes[63 * 256 + 64], 0);

    auto color = Photographed::OfSteps("Orvik-710C");
    color.Write(pattern, {1});
    const Bytes bars = color.Shoot().bytes;
    EXPECT_EQ(Bytes(&bars[285], &bars[291]), (Bytes{0, 255, 255, 0, 255, 0})); // the last cyan, the first green

    Photographed other("Cerix-MV7");
    other.Write(pattern, {1, 4}); // the right half
    const Bytes live = other.Shoot(7).bytes;
    EXPECT_EQ(Word(live, 512), 512U * 16383 / 1023);
    other.Write(pattern, {0, 2});
    EXPECT_EQ(Word(other.Shoot(7).bytes, 511), 16383U);
    EXPECT_NE(Word(live, 511), 16383U);
}

} // namespace Scenario
