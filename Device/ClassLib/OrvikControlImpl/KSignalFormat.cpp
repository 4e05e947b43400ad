#include "OrvikControlImpl/KSignalFormat.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KSignalFormat::KSignalFormat(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                             std::string model)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KSignalFormat");
    // clang-format off
    Register<int>       (ColorCoding, 0x28020000, Normal,        {LoadSettings});
    Register<SDK4_KSIZE>(ImageSize,   0x28030000, ReadBackFixed, {LoadSettings, ReadoutArea, ColorCoding});

    if (IsColorModel(model)) {
        Enum(ColorCoding, {SDK4_COLORCODING_RGB8, SDK4_COLORCODING_BGR8, SDK4_COLORCODING_YUV422PACKED, SDK4_COLORCODING_RAW14,
                           SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO12PACKED, SDK4_COLORCODING_MONO14}).LockedBy(TLParamsLocked);
    } else {
        Enum(ColorCoding, {SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO12PACKED, SDK4_COLORCODING_MONO14}).LockedBy(TLParamsLocked);
    }
    Plain<SDK4_KSIZE>(ImageSize);
    // clang-format on
}

// clang-format off
SDK4_ENUM_COLORCODING KSignalFormat::GetColorCoding()            { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_COLORCODING>(ColorCoding); }
void KSignalFormat::SetColorCoding(SDK4_ENUM_COLORCODING coding) { SDK4_LOG_CALL(); Set<int>(ColorCoding, coding); }
SDK4_KSIZE KSignalFormat::GetImageSize()                         { SDK4_LOG_CALL(); return Get<SDK4_KSIZE>(ImageSize); }
// clang-format on

} // namespace SDK4::Control
