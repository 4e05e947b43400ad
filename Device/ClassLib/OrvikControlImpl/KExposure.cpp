#include "OrvikControlImpl/KExposure.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KExposure::KExposure(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KExposure");
    // clang-format off
    Register<int>           (ExposureMode,      0x0A020000, Normal,   {LoadSettings});
    Register<unsigned int>  (AutoExposureLevel, 0x46030000, Normal,   {LoadSettings});
    Register<int>           (Aet,               0x46010000, Never,    {LoadSettings});
    exposureRegister =
    Register<SDK4_KEXPOSURE>(Exposure,          0x0A030000, ReadBack, {LoadSettings, ExposureMode, ReadoutTime, Aet, SlowScan});

    Enum                 (ExposureMode, {1, 2, 3, 4});
    Plain<SDK4_KEXPOSURE>(Exposure).LockedBy(IsAetOn);
    Enum                 (Aet, {0, 1, 2});
    Range<unsigned int>  (AutoExposureLevel, 0, 255);
    // clang-format on
}

KExposure::~KExposure() { SDK4_LOG(Info, "Call"); }

// clang-format off
SDK4_ENUM_EXPOSUREMODE KExposure::GetExposureMode()                { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_EXPOSUREMODE>(ExposureMode); }
void KExposure::SetExposureMode(int mode)                          { SDK4_LOG_CALL(); Set<int>(ExposureMode, mode); }
SDK4_KEXPOSURE KExposure::GetExposure()                            { SDK4_LOG_CALL(); return Get<SDK4_KEXPOSURE>(Exposure); }
void KExposure::SetExposure(SDK4_KEXPOSURE exposure)               { SDK4_LOG_CALL(); Set<SDK4_KEXPOSURE>(Exposure, exposure); }
unsigned int KExposure::GetAutoExposureLevel()                     { SDK4_LOG_CALL(); return Get<unsigned int>(AutoExposureLevel); }
void KExposure::SetAutoExposureLevel(unsigned int level)           { SDK4_LOG_CALL(); Set<unsigned int>(AutoExposureLevel, level); }
SDK4_ENUM_AET KExposure::GetAET()                                  { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_AET>(Aet); }
// clang-format on

void KExposure::SetAET(int mode) {
    SDK4_LOG_CALL();
    Set<int>(Aet, mode);
    CacheUnlessAutomatic(exposureRegister, mode);
}

} // namespace SDK4::Control
