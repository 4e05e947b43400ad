#include "OrvikControlImpl/KSlowScan.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KSlowScan::KSlowScan(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                     std::string /*model*/)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KSlowScan");
    // clang-format off
    Register<int>(SlowScan, 0x0A0E0000, Normal, {LoadSettings});

    Plain<int>(SlowScan).LockedBy(TLParamsLocked);
    // clang-format on
}

SDK4_ENUM_SWITCH KSlowScan::GetSlowScan() {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

void KSlowScan::SetSlowScan(int /*mode*/) {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

} // namespace SDK4::Control
