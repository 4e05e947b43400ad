#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Gain and automatic gain control. Orvik only.
///
/// While automatic gain is on, the camera adjusts the gain: writing it is locked and, once the mode was set through
/// this control, every read goes to the camera. Switching automatic gain off turns caching of the gain on, even for a
/// control created with index 2.
class SDK4_PUBLIC IGain {
public:
    /// Gain in steps of the camera, 0 to 511. Register 0x14010000.
    virtual unsigned int GetGain() = 0;

    /// Sets the gain, 0 to 511.
    /// @throws SDK4_ERR_OUTOFRANGE after 511 was written.
    /// @throws SDK4_ERR_CANTSETFEATURE while automatic gain is on; nothing is written.
    virtual void SetGain(unsigned int gain) = 0;

    /// Automatic gain: 0 is off. Never cached. Register 0x46020000.
    virtual SDK4_ENUM_AGC GetAGC() = 0;

    /// Switches automatic gain: 0 off, 1 or 2 on. Invalidates the gain.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other mode; nothing is written and caching stays as it is.
    virtual void SetAGC(int mode) = 0;
};

} // namespace SDK4::Control
