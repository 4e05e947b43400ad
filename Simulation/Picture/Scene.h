#pragma once

#include <cstdint>

namespace Simulation::Picture {

/// A colour in tones, which are as even steps to the eye: the light of a tone is proportional to its square.
struct Color {
    std::uint8_t red, green, blue;
};

/// The light of a colour for an eye, or for a sensor without colour filters: 0 to 255 * 255.
[[nodiscard]] constexpr std::uint32_t LightOf(Color color) {
    return (77U * color.red * color.red + 150U * color.green * color.green + 29U * color.blue * color.blue) >> 8;
}

/// The tone of a light: its square root, rounded.
[[nodiscard]] std::uint8_t ToneOf(std::uint32_t light);

/// A place in the scene, from its centre to the right and down. The sensor sees from -16000 to 16000 of its height,
/// whatever its resolution.
struct Place {
    std::int64_t x, y;
};

/// The scene in front of a camera: a chart that fills the sensor. It is made of integers alone, as all that pictures
/// are made of, so that each build shows the same.
class Scene {
public:
    Scene(std::uint32_t sensorWidth, std::uint32_t sensorHeight);

    /// Where the middle of a pixel is.
    [[nodiscard]] Place PlaceOf(std::uint64_t column, std::uint64_t line) const;
    [[nodiscard]] Color At(Place place) const;
    /// The mean of the light of the whole.
    [[nodiscard]] std::uint32_t MeanLight() const;

private:
    [[nodiscard]] bool IsMargin(Place place, Color& color) const;

    std::int64_t width;
    std::int64_t height;
    std::int64_t right; ///< end of what the sensor sees
};

/// The mark that moves over the scene, from frame to frame.
class Mark {
public:
    static constexpr Color color{206, 48, 40};

    explicit Mark(std::uint64_t frameNumber);

    [[nodiscard]] bool TouchesLine(std::int64_t y) const;
    [[nodiscard]] bool Covers(Place place) const;

private:
    Place centre;
};

} // namespace Simulation::Picture
