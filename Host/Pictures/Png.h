#pragma once

#include "Host/Pictures/PictureSource.h"
#include "Host/Pictures/PixelFormat.h"

#include <string>

namespace Host {

/// Encodes a picture as a PNG file: grey or RGB of 8 bits, or grey of 16 bits. Wider samples are scaled to 16 bits.
/// @throws std::runtime_error if libpng fails
[[nodiscard]] std::string EncodePng(const Picture& picture, const PixelFormat& format);

} // namespace Host
