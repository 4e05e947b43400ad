#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control::M2VX {

/// The measure frame and its one, circular window.
class SDK4_PUBLIC ISignalAnalysis {
public:
    /// Whether the measure frame is shown, 0 or 1. Register 0x1E010000.
    virtual unsigned int GetMeasureFrameShow() = 0;

    /// Shows the measure frame (1) or hides it (0).
    /// @throws SDK4_ERR_OUTOFRANGE for any other value; nothing is written.
    virtual void SetMeasureFrameShow(unsigned int show) = 0;

    /// The window: radius and stroke width in pixels, centre relative to the image centre, vertical stretch (128 is
    /// none). Register 0x1E030000, one block without an index.
    virtual SDK4_KMWCIRCLE GetMeasureWindow() = 0;

    /// Sets the window: radius 0 to 511, width 1 to 3, centre -511 to 511, vertical stretch 1 to 512.
    /// @throws SDK4_ERR_OUTOFRANGE outside, after the window was written; "measurewindow" then holds the value read
    ///         back.
    virtual void SetMeasureWindow(SDK4_KMWCIRCLE window) = 0;
};

} // namespace SDK4::Control::M2VX
