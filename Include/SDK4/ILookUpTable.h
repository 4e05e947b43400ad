#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Look-up table and negative image.
class SDK4_PUBLIC ILookUpTable {
public:
    /// Look-up-table mode, 0 or 1; a code of the camera. Register 0x19020000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual SDK4_ENUM_LUTMODE GetLUTMode() = 0;

    /// Sets the look-up-table mode, 0 or 1.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other mode; nothing is written.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual void SetLUTMode(int mode) = 0;

    /// Index of the curve that fills the table. Register 0x19010000.
    virtual int GetLUTInterpolatorIndex() = 0;

    /// Sets the index of the curve that fills the table: -8 to 12 (Orvik), 0 to 12 (M2VX).
    /// @throws SDK4_ERR_OUTOFRANGE after the nearest limit was written (Orvik); M2VX writes nothing.
    virtual void SetLUTInterpolatorIndex(int index) = 0;

    /// Whether the image is inverted. Register 0x19030000.
    virtual SDK4_ENUM_SWITCH GetNegativeImage() = 0;

    /// Inverts the image (1) or not (0). Orvik: the next read goes to the camera.
    /// @throws SDK4_ERR_INVALID_PARAMETER (M2VX: SDK4_ERR_OUTOFRANGE) for any other value; nothing is written.
    virtual void SetNegativeImage(int negative) = 0;
};

} // namespace SDK4::Control
