#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control::M2VX {

/// The camera's table of defect pixels: pairs 0 to 127 of two entries each. No mode of the camera disables these
/// properties. If the host disables one, its setter throws SDK4_ERR_DISABLED: before any access for a scalar, after the
/// write for a part of an entry.
class SDK4_PUBLIC IDefectPixel {
public:
    /// One entry of the table: column and line in pixels, and how it is replaced. A cached control has read the pairs
    /// in use; for the others it returns what it set, or zeros. Register 0x0B020000.
    /// @throws SDK4_ERR_CANTGETFEATURE for a pair above 127 or a position above 1, before any access.
    virtual SDK4_KDEFECTPIXEL GetDefectPixel(SDK4_KDEFECTPIXELSELECT select) = 0;

    /// Replaces one entry of the table: column and line 0 to 1024, mode 0 to 2.
    /// @throws SDK4_ERR_CANTGETFEATURE for a pair above 127 or a position above 1, before any access.
    /// @throws SDK4_ERR_OUTOFRANGE for a pixel outside, after it was written; the "defectpixel" entry then holds the
    ///         value read back.
    virtual void SetDefectPixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) = 0;

    /// Makes the camera search for defect pixels and fill the table. Register 0x0B030000. A cached control keeps the
    /// old table: open the camera again.
    virtual void SetDefectPixelAutoCompensation() = 0;

    /// Number of pairs in use, 0 to 128. Register 0x0B040000.
    virtual unsigned int GetDefectPixelCount() = 0;

    /// Whether defect pixels are shown in the image, 0 or 1. Register 0x0B0A0000.
    virtual unsigned int GetDefectPixelShow() = 0;

    /// Shows the defect pixels (1) or not (0).
    /// @throws SDK4_ERR_OUTOFRANGE for any other value; nothing is written.
    virtual void SetDefectPixelShow(unsigned int show) = 0;
};

} // namespace SDK4::Control::M2VX
