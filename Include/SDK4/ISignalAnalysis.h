#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// The measure frame and its two windows. Orvik only. Windows are numbered 0 and 1 (SDK4_ENUM_MEASUREWINDOWSELECT).
class SDK4_PUBLIC ISignalAnalysis {
public:
    /// Whether the measure frame is shown. Register 0x1E010000.
    virtual SDK4_ENUM_SWITCH GetMeasureFrameShow() = 0;

    /// Shows the measure frame (1) or hides it (0).
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other value; nothing is written.
    virtual void SetMeasureFrameShow(int show) = 0;

    /// Colour of the measure frame; a code of the camera. Register 0x1E020000.
    /// @throws SDK4_ERR_DISABLED in a raw colour coding (150, 151, 153).
    virtual SDK4_ENUM_MFCOLOR GetMeasureFrameColor() = 0;

    /// Sets the colour of the measure frame; not checked.
    /// @throws SDK4_ERR_DISABLED in a raw colour coding (150, 151, 153); nothing is written.
    virtual void SetMeasureFrameColor(int color) = 0;

    /// A measure window in pixels. Invalidated by readout area and binning. Register 0x1E030000, indexed.
    /// @throws SDK4_ERR_INVALID_PARAMETER for a window other than 0 and 1, before any access.
    virtual SDK4_KAREA GetMeasureWindow(int window) = 0;

    /// Sets a measure window. The area is not checked. The camera may adjust it, so the next read goes to the camera.
    /// @throws SDK4_ERR_INVALID_PARAMETER for a window other than 0 and 1, before any access.
    virtual void SetMeasureWindow(int window, SDK4_KAREA area) = 0;

    /// What the camera measures in a window.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always.
    virtual unsigned int GetMeasureValue(int window) = 0;
};

} // namespace SDK4::Control
