#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Pixel coding and image size.
class SDK4_PUBLIC ISignalFormat {
public:
    virtual SDK4_ENUM_COLORCODING GetColorCoding() = 0;
    virtual void SetColorCoding(SDK4_ENUM_COLORCODING coding) = 0;
    virtual SDK4_KSIZE GetImageSize() = 0;
};

} // namespace SDK4::Control
