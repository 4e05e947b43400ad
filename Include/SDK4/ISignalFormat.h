#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Pixel coding and image size.
class SDK4_PUBLIC ISignalFormat {
public:
    /// How a pixel is coded. M2VX: a cached control always returns 6. Register 0x28020000.
    virtual SDK4_ENUM_COLORCODING GetColorCoding() = 0;

    /// Sets how a pixel is coded: 0, 6 or 14 on every model, also 52, 110, 111 or 153 on a colour model (a "C" in its
    /// name). Invalidates image size and frame duration.
    /// @throws SDK4_ERR_CANTSETFEATURE while acquisition runs; nothing is written.
    /// @throws SDK4_ERR_INVALID_PARAMETER for a coding that the model does not have; nothing is written.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual void SetColorCoding(SDK4_ENUM_COLORCODING coding) = 0;

    /// Width and height of the image in pixels. Orvik: invalidated by readout area, binning and colour coding;
    /// otherwise cached, even with index 2. Register 0x28030000.
    virtual SDK4_KSIZE GetImageSize() = 0;
};

} // namespace SDK4::Control
