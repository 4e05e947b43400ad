#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control::M2VX {

/// The three overlays that the camera draws into its image, numbered 0 to 2. Before any access overlay 3 throws
/// SDK4_ERR_OUTOFRANGE, any other number SDK4_ERR_INVALID_PARAMETER. The registers are indexed by the overlay.
class SDK4_PUBLIC IOverlay {
public:
    /// Whether the overlay is shown. Register 0x17010000.
    virtual SDK4_ENUM_SWITCH GetOverlayShow(int overlay) = 0;

    /// Shows the overlay (1) or hides it (0).
    /// @throws SDK4_ERR_OUTOFRANGE for any other value; nothing is written.
    virtual void SetOverlayShow(int overlay, int show) = 0;

    /// Position relative to the image centre in pixels. Register 0x17020000.
    virtual SDK4_KCIRCULARPOSITION GetOverlayPosition(int overlay) = 0;

    /// Moves the overlay, -500 to 499 in each direction.
    /// @throws SDK4_ERR_OUTOFRANGE outside, after the position was written; "overlayposition" then holds the value read
    ///         back.
    virtual void SetOverlayPosition(int overlay, SDK4_KCIRCULARPOSITION position) = 0;

    /// How the overlay is drawn; codes of the camera. Register 0x17030000.
    virtual SDK4_KSTYLE GetOverlayStyle(int overlay) = 0;

    /// Sets how the overlay is drawn: colour 0 to 3, style 0 or 1.
    /// @throws SDK4_ERR_OUTOFRANGE for any other; nothing is written.
    virtual void SetOverlayStyle(int overlay, SDK4_KSTYLE style) = 0;

    /// Stroke width and length in pixels. Register 0x17040000.
    virtual SDK4_KOVERLAYSIZE GetOverlaySize(int overlay) = 0;

    /// Sets stroke width, 0 to 3, and length, 1 to 1024.
    /// @throws SDK4_ERR_OUTOFRANGE outside; nothing is written.
    virtual void SetOverlaySize(int overlay, SDK4_KOVERLAYSIZE size) = 0;
};

} // namespace SDK4::Control::M2VX
