#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Slow readout.
class SDK4_PUBLIC ISlowScan {
public:
    virtual SDK4_ENUM_SWITCH GetSlowScan() = 0;
    virtual void SetSlowScan(int mode) = 0;
};

} // namespace SDK4::Control
