#include "Simulation/Picture/Frame.h"

#include <SDK4/Enums.h>

namespace Simulation::Picture {

std::uint32_t PixelFormatOf(std::uint32_t colorCoding) {
    switch (colorCoding) {
    case SDK4_COLORCODING_MONO8:
        return 0x01080001;
    case SDK4_COLORCODING_MONO14:
        return 0x01100025;
    case SDK4_COLORCODING_MONO12PACKED:
        return 0x010C0006;
    case SDK4_COLORCODING_YUV422PACKED:
        return 0x0210001F;
    case SDK4_COLORCODING_RGB8:
        return 0x02180014;
    case SDK4_COLORCODING_BGR8:
        return 0x02180015;
    case SDK4_COLORCODING_RAW14:
        return 0x82100025;
    default:
        return 0;
    }
}

} // namespace Simulation::Picture
