#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Gain and automatic gain control.
class SDK4_PUBLIC IGain {
public:
    virtual unsigned int GetGain() = 0;
    virtual void SetGain(unsigned int gain) = 0;
    virtual SDK4_ENUM_AGC GetAGC() = 0;
    virtual void SetAGC(int mode) = 0;
};

} // namespace SDK4::Control
