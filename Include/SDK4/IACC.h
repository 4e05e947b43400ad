#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Automatic contrast control. Orvik only.
///
/// While it is on, the camera adjusts brightness and contrast (IDigitalEnhancement): writing them is locked and, once
/// the mode was set through this control, every read goes to the camera. Switching it off turns caching of both on,
/// even for a control created with index 2.
class SDK4_PUBLIC IACC {
public:
    /// Automatic contrast control: 0 is off. Never cached. Register 0x46050000.
    virtual SDK4_ENUM_SWITCH GetACC() = 0;

    /// Switches automatic contrast control: 0 off, 1 to 4 on. Invalidates brightness and contrast.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other mode; nothing is written and caching stays as it is.
    virtual void SetACC(int mode) = 0;
};

} // namespace SDK4::Control
