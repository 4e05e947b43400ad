#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Test pictures and temperatures.
class SDK4_PUBLIC IInternalTests {
public:
    virtual SDK4_ENUM_PATTERN GetPatternGenerator() = 0;
    virtual void SetPatternGenerator(int pattern) = 0;
    virtual unsigned int GetTestPattern(unsigned int index) = 0;
    virtual void SetTestPattern(unsigned int index, unsigned int pattern) = 0;
    virtual int GetTemperaturePCB() = 0;
    virtual int GetTemperature(int sensor) = 0;
};

} // namespace SDK4::Control
