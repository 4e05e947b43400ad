#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Brightness, contrast, sharpness, histogram equalisation.
class SDK4_PUBLIC IDigitalEnhancement {
public:
    virtual unsigned int GetBrightness() = 0;
    virtual void SetBrightness(unsigned int brightness) = 0;
    virtual unsigned int GetContrast() = 0;
    virtual void SetContrast(unsigned int contrast) = 0;
    virtual unsigned int GetSharpness() = 0;
    virtual void SetSharpness(unsigned int sharpness) = 0;
    virtual SDK4_ENUM_HISTOEQUAL GetHistogramEqualization() = 0;
    virtual void SetHistogramEqualization(int mode) = 0;
};

} // namespace SDK4::Control
