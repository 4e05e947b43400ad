#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control::M2VX {

/// Automatic brightness control. Its mode switches properties on or off:
///
/// | SetABC | both "abcthreshold" | "abcstopmode" |
/// |--------|---------------------|---------------|
/// | 0, off | disabled            | disabled      |
/// | 1      | enabled             | disabled      |
/// | 2      | enabled             | enabled       |
///
/// The setters of both write a disabled property to the camera before they throw SDK4_ERR_DISABLED; the property keeps
/// its value. A cached control refuses the getters too.
class SDK4_PUBLIC IABC {
public:
    /// Automatic brightness control: 0 is off. Register 0x47040000.
    virtual unsigned int GetABC() = 0;

    /// Switches automatic brightness control, 0 to 2, and the properties that depend on it.
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    virtual void SetABC(unsigned int mode) = 0;

    /// Stop mode of automatic brightness control, 0 or 1. Register 0x47050000.
    virtual unsigned int GetABCStopMode() = 0;

    /// Sets the stop mode of automatic brightness control, 0 or 1.
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetABCStopMode(unsigned int mode) = 0;

    /// Threshold 0 or 1 in steps of the camera. Register 0x47090000, indexed.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other threshold, before any access.
    virtual unsigned int GetABCThreshold(unsigned int index) = 0;

    /// Sets threshold 0 or 1, to a value from 0 to 1023.
    /// @throws SDK4_ERR_INVALID_PARAMETER for an index above 1, before any access.
    /// @throws SDK4_ERR_OUTOFRANGE for a greater value, after it was written; the "abcthreshold" of that index then
    ///         holds the value read back.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetABCThreshold(unsigned int index, unsigned int threshold) = 0;

    /// Level of the control in steps of the camera, 0 to 1023. Register 0x470A0000.
    virtual unsigned int GetABCXRLevel() = 0;
};

} // namespace SDK4::Control::M2VX
