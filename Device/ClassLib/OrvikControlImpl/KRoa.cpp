#include "OrvikControlImpl/KRoa.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KRoa::KRoa(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KRoa");
    // clang-format off
    Register<SDK4_KAREA>(ReadoutArea,       0x28050000,              Normal,   {LoadSettings, Binning});
    Register<SDK4_KAREA>(ReadoutAreaActive, 0x28090000, Instance{2}, Normal,   {LoadSettings, Binning});
    Register<SDK4_KAREA>(ReadoutAreaMax,    0x28090000, Instance{1}, ReadBack, {LoadSettings, Binning});
    Register<SDK4_KAREA>(ReadoutAreaMin,    0x28090000, Instance{0}, ReadBack, {LoadSettings, Binning});

    RangeOf<SDK4_KAREA>(ReadoutArea, ReadoutAreaMin, ReadoutAreaMax).LockedBy(TLParamsLocked);
    Plain<SDK4_KAREA>  (ReadoutAreaActive);
    Plain<SDK4_KAREA>  (ReadoutAreaMax);
    Plain<SDK4_KAREA>  (ReadoutAreaMin);
    // clang-format on
}

// clang-format off
SDK4_KAREA KRoa::GetReadoutArea()          { SDK4_LOG_CALL(); return Get<SDK4_KAREA>(ReadoutArea); }
void KRoa::SetReadoutArea(SDK4_KAREA area) { SDK4_LOG_CALL(); Set<SDK4_KAREA>(ReadoutArea, area); }
SDK4_KAREA KRoa::GetFrameMask()            { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
void KRoa::SetFrameMask(SDK4_KAREA)        { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
// clang-format on

SDK4_KAREA KRoa::GetReadoutAreaLimits(int domain) {
    SDK4_LOG_CALL();
    switch (domain) {
    case SDK4_ROADOMAIN_MIN:
        return Get<SDK4_KAREA>(ReadoutAreaMin);
    case SDK4_ROADOMAIN_MAX:
        return Get<SDK4_KAREA>(ReadoutAreaMax);
    case SDK4_ROADOMAIN_ACTIVE:
        return Get<SDK4_KAREA>(ReadoutAreaActive);
    default:
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
}

} // namespace SDK4::Control
