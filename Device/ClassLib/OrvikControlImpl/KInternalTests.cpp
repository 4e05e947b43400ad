#include "OrvikControlImpl/KInternalTests.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KInternalTests::KInternalTests(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                               std::string model)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KInternalTests");
    // clang-format off
    Register<int>(PatternGenerator, 0x5A010000,              Normal); // not part of the settings sets
    Register<int>(Temperature1,     0x5A030000, Instance{0}, Never);

    if (IsColorModel(model)) {
        Enum(PatternGenerator, {0, 1});
    } else {
        Enum(PatternGenerator, {0, 1, 2, 3});
}
    Plain<int>(Temperature1);
    // clang-format on
}

// clang-format off
SDK4_ENUM_PATTERN KInternalTests::GetPatternGenerator()             { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_PATTERN>(PatternGenerator); }
void KInternalTests::SetPatternGenerator(int pattern)               { SDK4_LOG_CALL(); Set<int>(PatternGenerator, pattern); }
unsigned int KInternalTests::GetTestPattern(unsigned int)           { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
void KInternalTests::SetTestPattern(unsigned int, unsigned int)     { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
int KInternalTests::GetTemperaturePCB()                             { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
// clang-format on

int KInternalTests::GetTemperature(int sensor) {
    SDK4_LOG_CALL();
    if (sensor != 0) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    return Get<int>(Temperature1);
}

} // namespace SDK4::Control
