#include "OrvikControlImpl/KGain.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KGain::KGain(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KGain");
    // clang-format off
    gainRegister =
    Register<unsigned int>(Gain, 0x14010000, Normal, {LoadSettings, Agc});
    Register<int>         (Agc,  0x46020000, Never,  {LoadSettings});

    Range<unsigned int>(Gain, 0, 511).LockedBy(IsAgcOn);
    Enum               (Agc,  {0, 1, 2});
    // clang-format on
}

// clang-format off
unsigned int KGain::GetGain()           { SDK4_LOG_CALL(); return Get<unsigned int>(Gain); }
void KGain::SetGain(unsigned int gain)  { SDK4_LOG_CALL(); Set<unsigned int>(Gain, gain); }
SDK4_ENUM_AGC KGain::GetAGC()           { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_AGC>(Agc); }
// clang-format on

void KGain::SetAGC(int mode) {
    SDK4_LOG_CALL();
    Set<int>(Agc, mode);
    CacheUnlessAutomatic(gainRegister, mode);
}

} // namespace SDK4::Control
