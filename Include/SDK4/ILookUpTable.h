#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Look-up table and negative image.
class SDK4_PUBLIC ILookUpTable {
public:
    virtual SDK4_ENUM_LUTMODE GetLUTMode() = 0;
    virtual void SetLUTMode(int mode) = 0;
    virtual int GetLUTInterpolatorIndex() = 0;
    virtual void SetLUTInterpolatorIndex(int index) = 0;
    virtual SDK4_ENUM_SWITCH GetNegativeImage() = 0;
    virtual void SetNegativeImage(int negative) = 0;
};

} // namespace SDK4::Control
