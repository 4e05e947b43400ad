#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// Timing of the sensor.
class SDK4_PUBLIC ITiming {
public:
    virtual unsigned int GetPixelClock() = 0;
    virtual unsigned int GetReadoutTime() = 0;
    virtual void SetReadoutTime(unsigned int microseconds) = 0;
    virtual unsigned int GetFrameDuration() = 0;
};

} // namespace SDK4::Control
