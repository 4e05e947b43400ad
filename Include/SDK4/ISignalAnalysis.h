#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// The measure frame and its windows.
class SDK4_PUBLIC ISignalAnalysis {
public:
    virtual SDK4_ENUM_SWITCH GetMeasureFrameShow() = 0;
    virtual void SetMeasureFrameShow(int show) = 0;
    virtual SDK4_ENUM_MFCOLOR GetMeasureFrameColor() = 0;
    virtual void SetMeasureFrameColor(int color) = 0;
    virtual SDK4_KAREA GetMeasureWindow(int window) = 0;
    virtual void SetMeasureWindow(int window, SDK4_KAREA area) = 0;
    virtual unsigned int GetMeasureValue(int window) = 0;
};

} // namespace SDK4::Control
