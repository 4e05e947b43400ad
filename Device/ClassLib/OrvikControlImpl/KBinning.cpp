#include "OrvikControlImpl/KBinning.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

namespace {

bool IsFactor(unsigned int factor) { return factor >= 1 && factor <= 8; }

} // namespace

KBinning::KBinning(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                   std::string /*model*/)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KBinning");
    // clang-format off
    Register<SDK4_KBINNING>(Binning, 0x0A0B0000, Normal, {LoadSettings});

    Plain<SDK4_KBINNING>(Binning).ImplementedIf(IsMonoCamera).LockedBy(TLParamsLocked);
    // clang-format on
}

SDK4_KBINNING KBinning::GetBinning() {
    SDK4_LOG_CALL();
    return Get<SDK4_KBINNING>(Binning);
}

void KBinning::SetBinning(SDK4_KBINNING binning) {
    SDK4_LOG_CALL();
    // The factors are checked before any access, and refused rather than clamped.
    if (!IsFactor(binning.horizontal) || !IsFactor(binning.vertical)) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    Set<SDK4_KBINNING>(Binning, binning);
}

} // namespace SDK4::Control
