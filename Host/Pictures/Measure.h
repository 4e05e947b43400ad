#pragma once

#include "Host/Pictures/PictureSource.h"
#include "Host/Pictures/PixelFormat.h"

namespace Host {

/// Statistics of the samples of a picture, all channels together.
struct Measures {
    std::uint32_t minimum = 0;
    std::uint32_t maximum = 0;
    double mean = 0;
    double saturated = 0; ///< percent of the samples at full scale
    double sharpness = 0; ///< mean difference of horizontal neighbours, in per mille of full scale
};

/// @param step measures every step-th line only
[[nodiscard]] Measures Measure(const Picture& picture, const PixelFormat& format, std::uint32_t step = 1);

} // namespace Host
