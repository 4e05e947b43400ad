#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control::M2VX {

/// Shading correction and blanking outside a circle. Each mode (0 is off) enables or disables the properties that it
/// uses. The setter of a disabled property throws SDK4_ERR_DISABLED and writes nothing. A cached control refuses the
/// getter too.
class SDK4_PUBLIC IImageCorrection {
public:
    /// Whether shading is corrected, 0 or 1. Register 0x1B010000.
    virtual unsigned int GetShadingCorrectionMode() = 0;

    /// Switches shading correction, 0 or 1, and with it the four entries of "shadingcorrection".
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    virtual void SetShadingCorrectionMode(unsigned int mode) = 0;

    /// Correction of channel 0 to 3 in steps of the camera. Register 0x1B020000, indexed.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other channel, before any access.
    virtual int GetShadingCorrection(unsigned int channel) = 0;

    /// Sets the correction of a channel, -128 to 127.
    /// @throws SDK4_ERR_INVALID_PARAMETER for a channel above 3, before any access.
    /// @throws SDK4_ERR_OUTOFRANGE for a value outside, after it was written; the channel's "shadingcorrection" then
    ///         holds the value read back.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetShadingCorrection(unsigned int channel, int correction) = 0;

    /// Whether the image is blanked outside a circle, 0 or 1. Register 0x1B030000.
    virtual unsigned int GetCircularBlankingMode() = 0;

    /// Switches the blanking, 0 or 1, and with it "circularblankingsize" and "circularblankingposition".
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    virtual void SetCircularBlankingMode(unsigned int mode) = 0;

    /// Size of the circle in pixels. Register 0x1B040000.
    virtual unsigned int GetCircularBlankingSize() = 0;

    /// Sets the size of the circle, 1 to 512.
    /// @throws SDK4_ERR_OUTOFRANGE outside, after the value was written; "circularblankingsize" then holds the value
    ///         read back.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetCircularBlankingSize(unsigned int size) = 0;

    /// Centre of the circle in pixels from the upper left corner. Register 0x1B050000.
    virtual SDK4_KCIRCULARPOSITION GetCircularBlankingPosition() = 0;

    /// Moves the circle, 0 to 1023 in each direction.
    /// @throws SDK4_ERR_OUTOFRANGE outside, after the position was written; "circularblankingposition" then holds the
    ///         value read back.
    /// @throws SDK4_ERR_DISABLED as above.
    virtual void SetCircularBlankingPosition(SDK4_KCIRCULARPOSITION position) = 0;
};

} // namespace SDK4::Control::M2VX
