#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Automatic contrast control.
class SDK4_PUBLIC IACC {
public:
    virtual SDK4_ENUM_SWITCH GetACC() = 0;
    virtual void SetACC(int mode) = 0;
};

} // namespace SDK4::Control
