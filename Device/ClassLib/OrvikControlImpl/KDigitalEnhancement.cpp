#include "OrvikControlImpl/KDigitalEnhancement.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KDigitalEnhancement::KDigitalEnhancement(CFeatureList* features, CRegisterList* registers, IControlPort* port,
                                         bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KDigitalEnhancement");
    // clang-format off
    brightnessRegister =
    Register<unsigned int>(Brightness, 0x18010000, Normal, {LoadSettings, Acc});
    contrastRegister =
    Register<unsigned int>(Contrast,   0x18020000, Normal, {LoadSettings, Acc});
    Register<unsigned int>(Sharpness,  0x18030000, Normal, {LoadSettings});
    Register<int>         (Acc,        0x46050000, Never,  {LoadSettings});

    Range<unsigned int>(Brightness, 0, 2047).LockedBy(IsAccOn);
    Range<unsigned int>(Contrast,  32, 255).LockedBy(IsAccOn);
    Range<unsigned int>(Sharpness,  0, 255);
    Enum               (Acc, {0, 1, 2, 3, 4});
    // clang-format on
}

// clang-format off
unsigned int KDigitalEnhancement::GetBrightness()                      { SDK4_LOG_CALL(); return Get<unsigned int>(Brightness); }
void KDigitalEnhancement::SetBrightness(unsigned int brightness)       { SDK4_LOG_CALL(); Set<unsigned int>(Brightness, brightness); }
unsigned int KDigitalEnhancement::GetContrast()                        { SDK4_LOG_CALL(); return Get<unsigned int>(Contrast); }
void KDigitalEnhancement::SetContrast(unsigned int contrast)           { SDK4_LOG_CALL(); Set<unsigned int>(Contrast, contrast); }
unsigned int KDigitalEnhancement::GetSharpness()                       { SDK4_LOG_CALL(); return Get<unsigned int>(Sharpness); }
void KDigitalEnhancement::SetSharpness(unsigned int sharpness)         { SDK4_LOG_CALL(); Set<unsigned int>(Sharpness, sharpness); }
SDK4_ENUM_HISTOEQUAL KDigitalEnhancement::GetHistogramEqualization()   { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
void KDigitalEnhancement::SetHistogramEqualization(int)                { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
SDK4_ENUM_SWITCH KDigitalEnhancement::GetACC()                         { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(Acc); }
// clang-format on

void KDigitalEnhancement::SetACC(int mode) {
    SDK4_LOG_CALL();
    Set<int>(Acc, mode);
    CacheUnlessAutomatic(brightnessRegister, mode);
    CacheUnlessAutomatic(contrastRegister, mode);
}

} // namespace SDK4::Control
