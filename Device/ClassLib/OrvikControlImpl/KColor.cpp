#include "OrvikControlImpl/KColor.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KColor::KColor(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
               std::string /*model*/)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KColor");
    // clang-format off
    colorBalanceRegister =
    Register<SDK4_KRGB>   (ColorBalance, 0x15010000, Normal, {LoadSettings, Awb});
    Register<int>         (LightSource,  0x15020000, Normal, {LoadSettings});
    Register<unsigned int>(Saturation,   0x15040000, Normal, {LoadSettings});
    Register<int>         (Awb,          0x46040000, Never,  {LoadSettings});

    Range<SDK4_KRGB>   (ColorBalance, {0, 0, 0}, {255, 255, 255}).ImplementedIf(IsColorCamera).LockedBy(IsAwbOn);
    Enum               (LightSource,  {0, 1, 2, 3}).AvailableIf(IsNotColorCodingRaw);
    Range<unsigned int>(Saturation,   0, 255).ImplementedIf(IsColorCamera);
    Enum               (Awb,          {0, 1, 2}).ImplementedIf(IsColorCamera);
    // clang-format on
}

// clang-format off
SDK4_KRGB KColor::GetColorBalance()                   { SDK4_LOG_CALL(); return Get<SDK4_KRGB>(ColorBalance); }
void KColor::SetColorBalance(SDK4_KRGB balance)       { SDK4_LOG_CALL(); Set<SDK4_KRGB>(ColorBalance, balance); }
SDK4_ENUM_LIGHTSOURCE KColor::GetLightSource()        { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_LIGHTSOURCE>(LightSource); }
void KColor::SetLightSource(int source)               { SDK4_LOG_CALL(); Set<int>(LightSource, source); }
unsigned int KColor::GetColorSaturation()             { SDK4_LOG_CALL(); return Get<unsigned int>(Saturation); }
void KColor::SetColorSaturation(unsigned int value)   { SDK4_LOG_CALL(); Set<unsigned int>(Saturation, value); }
SDK4_ENUM_WHITESET KColor::GetAutoWhiteset()          { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_WHITESET>(Awb); }
// clang-format on

void KColor::SetAutoWhiteset(int mode) {
    SDK4_LOG_CALL();
    Set<int>(Awb, mode);
    CacheUnlessAutomatic(colorBalanceRegister, mode);
}

} // namespace SDK4::Control
