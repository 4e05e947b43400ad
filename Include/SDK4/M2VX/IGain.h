#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control::M2VX {

/// Gain and automatic gain control. The mode of automatic gain decides what can be set:
///
/// | SetAGC       | "gain"   | "automaticlevel" | "autogainstopmode" |
/// |--------------|----------|------------------|--------------------|
/// | 0, manual    | enabled  | disabled         | disabled           |
/// | 1, automatic | disabled | disabled         | enabled            |
/// | 2, automatic | disabled | enabled          | enabled            |
///
/// A setter of a disabled property throws SDK4_ERR_DISABLED and writes nothing. A cached control refuses the getters of
/// "automaticlevel" and "autogainstopmode" too.
class SDK4_PUBLIC IGain {
public:
    /// Gain in steps of the camera, 0 to 568. Can be read in every mode. Register 0x14010000.
    virtual unsigned int GetGain() = 0;

    /// Sets the gain, 0 to 568.
    /// @throws SDK4_ERR_OUTOFRANGE above, after the value was written; "gain" then holds the value read back.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetGain(unsigned int gain) = 0;

    /// Automatic gain: 0 is off. Register 0x46020000.
    virtual SDK4_ENUM_AGC GetAGC() = 0;

    /// Switches automatic gain, 0 to 2, and the properties that depend on it.
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    virtual void SetAGC(int mode) = 0;

    /// Stop mode of automatic gain, 0 or 1. Register 0x46090000.
    virtual unsigned int GetAutoGainStopMode() = 0;

    /// Sets the stop mode of automatic gain, 0 or 1.
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetAutoGainStopMode(unsigned int mode) = 0;

    /// Target brightness of automatic gain in steps of the camera, 0 to 100. Register 0x46030000.
    virtual unsigned int GetAutomaticLevel() = 0;

    /// Sets the target brightness of automatic gain, 0 to 100.
    /// @throws SDK4_ERR_OUTOFRANGE above, after the value was written; "automaticlevel" then holds the value read back.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetAutomaticLevel(unsigned int level) = 0;
};

} // namespace SDK4::Control::M2VX
