#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IInternalTests.h>

#include <string>

namespace SDK4::Control {

/// Pattern generator and temperature.
class KInternalTests : public IInternalTests, protected Capability {
public:
    KInternalTests(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                   std::string model);

    SDK4_ENUM_PATTERN GetPatternGenerator() override;
    void SetPatternGenerator(int pattern) override;
    unsigned int GetTestPattern(unsigned int index) override;
    void SetTestPattern(unsigned int index, unsigned int pattern) override;
    int GetTemperaturePCB() override;
    int GetTemperature(int sensor) override;

    virtual ~KInternalTests() = default;
};

} // namespace SDK4::Control
