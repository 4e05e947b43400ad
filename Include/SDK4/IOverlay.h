#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// The two overlay lines that the camera draws into its image. Orvik only. Every operation takes the line first, 0 or 1
/// (SDK4_ENUM_OVERLAYSELECT), and throws SDK4_ERR_INVALID_PARAMETER for any other, before any access. The registers are
/// indexed by the line.
class SDK4_PUBLIC IOverlay {
public:
    /// Whether the line is shown. Register 0x17010000.
    virtual SDK4_ENUM_SWITCH GetOverlayShow(int line) = 0;

    /// Shows the line (1) or hides it (0).
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other value; nothing is written.
    virtual void SetOverlayShow(int line, int show) = 0;

    /// Position in pixels within the readout area. Invalidated by readout area and binning. Register 0x17020000.
    virtual SDK4_KPOSITION GetOverlayPosition(int line) = 0;

    /// Moves the line. The greatest position is the extent of the readout area, endx - startx and endy - starty, which
    /// is read first.
    /// @throws SDK4_ERR_OUTOFRANGE after the position was written with each greater coordinate clamped to that limit.
    virtual void SetOverlayPosition(int line, SDK4_KPOSITION position) = 0;

    /// How the line is drawn; codes of the camera. Register 0x17030000.
    virtual SDK4_KSTYLE GetOverlayStyle(int line) = 0;

    /// Sets how the line is drawn; not checked.
    virtual void SetOverlayStyle(int line, SDK4_KSTYLE style) = 0;

    /// Stroke width and length in pixels. Register 0x17040000.
    virtual SDK4_KOVERLAYSIZE GetOverlaySize(int line) = 0;

    /// Sets stroke width and length in pixels; not checked.
    virtual void SetOverlaySize(int line, SDK4_KOVERLAYSIZE size) = 0;
};

} // namespace SDK4::Control
