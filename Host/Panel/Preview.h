#pragma once

#include "Host/Pictures/Measure.h"
#include "Host/Pictures/PictureSource.h"
#include "Host/Pictures/PixelFormat.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Host::Panel {

/// A part of a picture, in its pixels.
struct Area {
    std::uint32_t left = 0;
    std::uint32_t top = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    bool operator==(const Area&) const = default;
};

/// How a client shows pictures.
struct PictureView {
    std::uint32_t width = 0; ///< that it has room for, in pixels of its own
    std::uint32_t height = 0;
    std::optional<Area> area{}; ///< nothing: the whole picture

    bool operator==(const PictureView&) const = default;
};

/// The part that the view shows of a picture: what it asks for, as far as the picture goes.
[[nodiscard]] Area AreaOf(const PictureView& view, const PictureFormat& format);

/// Encodes what a view shows as JPEG: reduced to the room with the ratio of the sides kept, never enlarged.
/// @throws std::runtime_error if the picture cannot be encoded
[[nodiscard]] std::string EncodePreview(const Picture& picture, const PixelFormat& format, const PictureView& view);

/// Statistics of a picture, from evenly distributed lines of it, about a million samples.
struct Survey {
    static constexpr std::size_t bins = 64; ///< from 0 to full scale

    Measures measures{};
    std::vector<std::array<std::uint64_t, bins>> histogram{}; ///< of each channel
};

[[nodiscard]] Survey SurveyOf(const Picture& picture, const PixelFormat& format);

/// The samples of one pixel, or none outside of the picture.
[[nodiscard]] std::vector<std::uint16_t> SamplesAt(const Picture& picture, const PixelFormat& format, std::uint32_t x,
                                                   std::uint32_t y);

} // namespace Host::Panel
