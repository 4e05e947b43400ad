#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/ITiming.h>

namespace SDK4::Control {

/// Timing of the sensor.
class KTiming : public ITiming, protected Capability {
public:
    KTiming(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    unsigned int GetPixelClock() override;
    unsigned int GetReadoutTime() override;
    void SetReadoutTime(unsigned int microseconds) override;
    unsigned int GetFrameDuration() override;
};

} // namespace SDK4::Control
