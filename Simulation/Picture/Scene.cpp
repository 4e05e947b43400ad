#include "Simulation/Picture/Scene.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace Simulation::Picture {

namespace {

constexpr std::int64_t bottom = 16000; // half of the height
constexpr std::int64_t unit = 16;      // what the chart is drawn in: thousandths of that

constexpr Color paper{180, 180, 180};
constexpr Color grid{152, 152, 152};
constexpr Color ink{38, 38, 38};
constexpr Color white{250, 250, 250};
constexpr Color track{228, 228, 228};

/// A gray of a light in 1/4096 of the greatest.
Color Gray(std::int64_t light) {
    const std::uint8_t tone = ToneOf(static_cast<std::uint32_t>(light * 255 * 255 / 4096));
    return {tone, tone, tone};
}

/// A part of the chart, in units.
struct Area {
    std::int64_t left, top, right, bottom;

    [[nodiscard]] bool Contains(Place place) const {
        return place.x >= left * unit && place.x < right * unit && place.y >= top * unit && place.y < bottom * unit;
    }
};

constexpr Area titleArea{-230, -900, 230, -795};
constexpr Area patchArea{-870, -745, 870, -455};
constexpr Area verticalLines{-870, -405, -420, 275};
constexpr Area horizontalLines{420, -405, 870, 275};
constexpr Area rampArea{-870, 330, 870, 450};
constexpr Area stepArea{-870, 470, 870, 590};
constexpr Area trackArea{-690, 665, 690, 785};
constexpr Place star{0, -65 * unit};
constexpr std::int64_t starRadius = 330 * unit;

// clang-format off
constexpr Color patches[2][8] = {
    {{222, 112, 100}, {226, 138, 70}, {236, 212, 100}, {132, 188, 92},
     {104, 174, 126}, {84, 176, 196}, {98, 146, 214}, {146, 114, 196}},
    {{208, 112, 168}, {234, 190, 206}, {230, 194, 168}, {170, 128, 106},
     {218, 208, 178}, {154, 172, 126}, {176, 204, 234}, {110, 126, 160}},
};
// clang-format on

/// "QDV12", seven lines of a glyph five columns wide, the highest bit of five is left.
constexpr std::uint8_t title[][7] = {
    {0x0E, 0x11, 0x11, 0x11, 0x15, 0x12, 0x0D}, {0x1E, 0x11, 0x11, 0x11, 0x11, 0x11, 0x1E},
    {0x11, 0x11, 0x11, 0x11, 0x11, 0x0A, 0x04}, {0x04, 0x0C, 0x04, 0x04, 0x04, 0x04, 0x0E},
    {0x0E, 0x11, 0x01, 0x02, 0x04, 0x08, 0x1F},
};

/// The direction from the centre, in 1/65536 of a turn; it is exact to a thousandth of a turn.
std::int64_t AngleOf(std::int64_t x, std::int64_t y) {
    const std::int64_t longer = std::max({std::abs(x), std::abs(y), std::int64_t{1}});
    const std::int64_t tangent = std::min(std::abs(x), std::abs(y)) * 32768 / longer;
    std::int64_t angle = tangent * (8192 + 2847 * (32768 - tangent) / 32768) / 32768;
    angle = std::abs(y) > std::abs(x) ? 16384 - angle : angle;
    angle = x < 0 ? 32768 - angle : angle;
    return y < 0 ? 65536 - angle : angle;
}

/// A star of wedges that get finer towards its centre; false outside of it.
bool IsStar(Place place, std::int64_t radius, std::int64_t wedges, Color& color) {
    const std::int64_t distance = place.x * place.x + place.y * place.y;
    if (distance >= radius * radius) {
        return false;
    }
    const std::int64_t rim = radius - radius / 24;
    const bool isDark = distance >= rim * rim || AngleOf(place.x, place.y) * wedges / 32768 % 2 != 0;
    color = isDark ? ink : white;
    return true;
}

Color TitleAt(Place place) {
    const std::int64_t column = (place.x - titleArea.left * unit) / (16 * unit);
    const std::int64_t line = (place.y - titleArea.top * unit) / (15 * unit);
    const std::int64_t glyph = column / 6;
    if (glyph > 4 || line > 6 || column % 6 == 5) {
        return paper;
    }
    return (title[glyph][line] >> (4 - column % 6) & 1) != 0 ? ink : paper;
}

Color PatchAt(Place place) {
    const std::int64_t pitch = (patchArea.right - patchArea.left + 20) * unit / 8;
    const std::int64_t x = place.x - patchArea.left * unit;
    const std::int64_t y = place.y - patchArea.top * unit;
    const bool isGap = x % pitch >= pitch - 20 * unit || (y >= 135 * unit && y < 155 * unit);
    return isGap ? paper : patches[y < 145 * unit ? 0 : 1][x / pitch];
}

/// Six groups of lines, each finer than the one before.
Color LineAt(std::int64_t along, std::int64_t length, std::int64_t across) {
    const std::int64_t periods[] = {64, 40, 24, 16, 10, 6};
    const std::int64_t pitch = (length + 20 * unit) / 6;
    if (along % pitch >= pitch - 20 * unit) {
        return paper;
    }
    const std::int64_t period = periods[along / pitch] * unit;
    return across % period < period / 2 ? ink : white;
}

constexpr std::int64_t lightest = 3937; // in 1/4096, about that of the white

Color RampAt(Place place) {
    return Gray((place.x - rampArea.left * unit) * lightest / ((rampArea.right - rampArea.left) * unit));
}

Color StepAt(Place place) {
    const std::int64_t step = (place.x - stepArea.left * unit) * 12 / ((stepArea.right - stepArea.left) * unit);
    return Gray(lightest - step * lightest / 11);
}

Color TrackAt(Place place) {
    const std::int64_t x = place.x - trackArea.left * unit;
    const bool isTick = x % (60 * unit) < 5 * unit && place.y >= (trackArea.bottom - 22) * unit;
    return isTick ? ink : track;
}

Color PaperAt(Place place) {
    const std::int64_t pitch = 125 * unit;
    const std::int64_t line = 4 * unit;
    const auto isOn = [=](std::int64_t coordinate) { return (coordinate + 1000 * pitch + line / 2) % pitch < line; };
    return isOn(place.x) || isOn(place.y) ? grid : paper;
}

constexpr std::int64_t markRadius = 42 * unit;

Place MarkCentre(std::uint64_t frameNumber) {
    const std::int64_t places = 128;
    const std::int64_t from = (trackArea.left + 60) * unit;
    const std::int64_t length = (trackArea.right - trackArea.left - 120) * unit;
    return {from + static_cast<std::int64_t>(frameNumber % places) * length / places,
            (trackArea.top + trackArea.bottom - 12) / 2 * unit};
}

} // namespace

std::uint8_t ToneOf(std::uint32_t light) {
    static const auto tones = [] {
        std::array<std::uint8_t, 255 * 255 + 1> roots{};
        std::uint32_t root = 0;
        for (std::uint32_t i = 0; i < roots.size(); ++i) {
            root += i > root * root + root ? 1 : 0;
            roots[i] = static_cast<std::uint8_t>(root);
        }
        return roots;
    }();
    return tones[light];
}

Scene::Scene(std::uint32_t sensorWidth, std::uint32_t sensorHeight)
    : width(sensorWidth),
      height(std::max(sensorHeight, 1U)),
      right(width * bottom / height) {}

Place Scene::PlaceOf(std::uint64_t column, std::uint64_t line) const {
    const auto place = [this](std::uint64_t pixel, std::int64_t size) {
        const auto bounded = static_cast<std::int64_t>(std::min<std::uint64_t>(pixel, 1U << 20));
        return (2 * bounded + 1 - size) * bottom / height;
    };
    return {place(column, width), place(line, height)};
}

/// A frame of checkers, and a star in each corner.
bool Scene::IsMargin(Place place, Color& color) const {
    const std::int64_t toSide = right - std::abs(place.x);
    const std::int64_t toEnd = bottom - std::abs(place.y);
    if (std::min(toSide, toEnd) < 25 * unit) {
        const std::int64_t along = toEnd < 25 * unit ? toSide : toEnd;
        color = along / (50 * unit) % 2 == 0 ? ink : white;
        return true;
    }
    const std::int64_t fromCorner = 125 * unit;
    return IsStar({toSide - fromCorner, toEnd - fromCorner}, 80 * unit, 16, color);
}

Color Scene::At(Place place) const {
    Color color = paper;
    if (IsMargin(place, color) || IsStar({place.x - star.x, place.y - star.y}, starRadius, 36, color)) {
        return color;
    }
    if (patchArea.Contains(place)) {
        return PatchAt(place);
    }
    if (verticalLines.Contains(place)) {
        return LineAt(place.y - verticalLines.top * unit, (verticalLines.bottom - verticalLines.top) * unit,
                      place.x - verticalLines.left * unit);
    }
    if (horizontalLines.Contains(place)) {
        return LineAt(place.x - horizontalLines.left * unit, (horizontalLines.right - horizontalLines.left) * unit,
                      place.y - horizontalLines.top * unit);
    }
    if (rampArea.Contains(place)) {
        return RampAt(place);
    }
    if (stepArea.Contains(place)) {
        return StepAt(place);
    }
    if (trackArea.Contains(place)) {
        return TrackAt(place);
    }
    return titleArea.Contains(place) ? TitleAt(place) : PaperAt(place);
}

std::uint32_t Scene::MeanLight() const {
    const std::int64_t samples = 311; // prime, so that it is no multiple of the lines
    std::uint64_t sum = 0;
    for (std::int64_t i = 0; i < samples * samples; ++i) {
        const std::int64_t column = i % samples;
        const std::int64_t line = i / samples;
        sum += LightOf(At({(2 * column + 1 - samples) * right / samples, (2 * line + 1 - samples) * bottom / samples}));
    }
    return static_cast<std::uint32_t>(sum / (samples * samples));
}

Mark::Mark(std::uint64_t frameNumber) : centre(MarkCentre(frameNumber)) {}

bool Mark::TouchesLine(std::int64_t y) const { return std::abs(y - centre.y) < markRadius; }

bool Mark::Covers(Place place) const {
    const std::int64_t x = place.x - centre.x;
    const std::int64_t y = place.y - centre.y;
    return x * x + y * y < markRadius * markRadius;
}

} // namespace Simulation::Picture
