#include "OrvikControlImpl/KLookupTable.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KLookupTable::KLookupTable(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KLookupTable");
    // clang-format off
    Register<int>(LutIndex,      0x19010000, Normal,   {LoadSettings});
    Register<int>(LutMode,       0x19020000, Normal,   {LoadSettings});
    Register<int>(NegativeImage, 0x19030000, ReadBack, {LoadSettings});

    Range<int>(LutIndex,     -8, 12);
    Enum      (LutMode,       {0, 1});
    Enum      (NegativeImage, {0, 1});
    // clang-format on
}

// clang-format off
SDK4_ENUM_LUTMODE KLookupTable::GetLUTMode()           { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_LUTMODE>(LutMode); }
void KLookupTable::SetLUTMode(int mode)                { SDK4_LOG_CALL(); Set<int>(LutMode, mode); }
int KLookupTable::GetLUTInterpolatorIndex()            { SDK4_LOG_CALL(); return Get<int>(LutIndex); }
void KLookupTable::SetLUTInterpolatorIndex(int index)  { SDK4_LOG_CALL(); Set<int>(LutIndex, index); }
SDK4_ENUM_SWITCH KLookupTable::GetNegativeImage()      { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(NegativeImage); }
void KLookupTable::SetNegativeImage(int negative)      { SDK4_LOG_CALL(); Set<int>(NegativeImage, negative); }
// clang-format on

} // namespace SDK4::Control
