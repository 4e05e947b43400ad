#pragma once

#include "Host/Pictures/PictureSource.h"
#include "Host/Pictures/PixelFormat.h"

#include <string>

namespace Host {

/// A picture as the content of a PNG file: grey of 8 bits, or of 16 to which the samples are scaled, or RGB of 8 bits.
/// @throws std::runtime_error
[[nodiscard]] std::string EncodePng(const Picture& picture, const PixelFormat& format);

} // namespace Host
