#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Colour balance, light source, saturation, automatic white set.
class SDK4_PUBLIC IColor {
public:
    virtual SDK4_KRGB GetColorBalance() = 0;
    virtual void SetColorBalance(SDK4_KRGB balance) = 0;
    virtual SDK4_ENUM_LIGHTSOURCE GetLightSource() = 0;
    virtual void SetLightSource(int source) = 0;
    virtual unsigned int GetColorSaturation() = 0;
    virtual void SetColorSaturation(unsigned int saturation) = 0;
    virtual SDK4_ENUM_WHITESET GetAutoWhiteset() = 0;
    virtual void SetAutoWhiteset(int mode) = 0;
};

} // namespace SDK4::Control
