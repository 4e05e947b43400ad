#include "OrvikControlImpl/KStreamControl.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KStreamControl::KStreamControl(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KStreamControl");
    // clang-format off
    Register<unsigned int>(StartAcquisition, 0x00088134, Never); Plain<unsigned int>(StartAcquisition);
    Register<unsigned int>(StopAcquisition,  0x00088138, Never); Plain<unsigned int>(StopAcquisition);
    // clang-format on
}

void KStreamControl::Start() {
    SDK4_LOG_CALL();
    Set<unsigned int>(StartAcquisition, 1);
    running = true;
}

void KStreamControl::Stop() {
    SDK4_LOG_CALL();
    Set<unsigned int>(StopAcquisition, 0); // zero, unlike Start: the write itself is the command
    running = false;
}

} // namespace SDK4::Control
