#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/ISignalAnalysis.h>

namespace SDK4::Control {

/// The measure frame and its two windows.
class KSignalAnalysis : public ISignalAnalysis, protected Capability {
public:
    KSignalAnalysis(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    SDK4_ENUM_SWITCH GetMeasureFrameShow() override;
    void SetMeasureFrameShow(int show) override;
    SDK4_ENUM_MFCOLOR GetMeasureFrameColor() override;
    void SetMeasureFrameColor(int color) override;
    SDK4_KAREA GetMeasureWindow(int window) override;
    void SetMeasureWindow(int window, SDK4_KAREA area) override;
    unsigned int GetMeasureValue(int window) override;

    virtual ~KSignalAnalysis() = default;
};

} // namespace SDK4::Control
