#include "Simulation/Picture/Frame.h"

#include <SDK4/Enums.h>

namespace Simulation::Picture {

std::uint32_t PixelFormatOf(std::uint32_t colorCoding) {
    switch (colorCoding) {
    case SDK4_COLORCODING_MONO8:
        return mono8;
    case SDK4_COLORCODING_MONO14:
        return mono14;
    case SDK4_COLORCODING_MONO12PACKED:
        return mono12Packed;
    case SDK4_COLORCODING_YUV422PACKED:
        return yuv422Packed;
    case SDK4_COLORCODING_RGB8:
        return rgb8;
    case SDK4_COLORCODING_BGR8:
        return bgr8;
    case SDK4_COLORCODING_RAW14:
        return raw14;
    default:
        return 0;
    }
}

} // namespace Simulation::Picture
