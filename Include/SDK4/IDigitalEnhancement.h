#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Brightness, contrast, sharpness, histogram equalisation.
///
/// |            | Orvik     | M2VX       |
/// |------------|-----------|------------|
/// | brightness | 0 to 2047 | 0 to 16383 |
/// | contrast   | 32 to 255 | 0 to 255   |
/// | sharpness  | 0 to 255  | 0 to 255   |
///
/// A value outside throws SDK4_ERR_OUTOFRANGE after a write: Orvik writes the nearest limit; M2VX writes the value
/// unchanged and stores the value read back.
///
/// Orvik: while automatic contrast control is on, writing brightness and contrast is locked (SDK4_ERR_CANTSETFEATURE,
/// nothing is written). See IACC for reads. M2VX: histogram equalisation 1 and 2 disable both. A write then reaches the
/// camera before it throws SDK4_ERR_DISABLED, and reading a cached value throws it too.
class SDK4_PUBLIC IDigitalEnhancement {
public:
    /// Brightness in steps of the camera. Register 0x18010000.
    virtual unsigned int GetBrightness() = 0;

    /// Sets the brightness.
    /// @throws SDK4_ERR_OUTOFRANGE, SDK4_ERR_CANTSETFEATURE (Orvik), SDK4_ERR_DISABLED (M2VX) as above.
    virtual void SetBrightness(unsigned int brightness) = 0;

    /// Contrast in steps of the camera. Register 0x18020000.
    virtual unsigned int GetContrast() = 0;

    /// Sets the contrast.
    /// @throws SDK4_ERR_OUTOFRANGE, SDK4_ERR_CANTSETFEATURE (Orvik), SDK4_ERR_DISABLED (M2VX) as above.
    virtual void SetContrast(unsigned int contrast) = 0;

    /// Sharpness in steps of the camera. Register 0x18030000.
    virtual unsigned int GetSharpness() = 0;

    /// Sets the sharpness.
    /// @throws SDK4_ERR_OUTOFRANGE as above.
    virtual void SetSharpness(unsigned int sharpness) = 0;

    /// Histogram equalisation: 0 is off. Register 0x180C0000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    virtual SDK4_ENUM_HISTOEQUAL GetHistogramEqualization() = 0;

    /// Switches histogram equalisation, 0 to 3.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    /// @throws SDK4_ERR_OUTOFRANGE (M2VX) for any other mode; nothing is written.
    virtual void SetHistogramEqualization(int mode) = 0;
};

} // namespace SDK4::Control
