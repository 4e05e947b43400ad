#include "OrvikControlImpl/KTrigger.h"

#include <unistd.h>

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KTrigger::KTrigger(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KTrigger");
    // clang-format off
    Register<unsigned int>  (SoftTrigger,  0x0A070000, Never);
    Register<unsigned int>  (TriggerTimer, 0x0A080000, Never);
    Register<SDK4_KEXPOSURE>(TriggerDelay, 0x0A100000, Never);

    Plain<unsigned int>  (SoftTrigger);
    Plain<unsigned int>  (TriggerTimer);
    Plain<SDK4_KEXPOSURE>(TriggerDelay).AvailableIf(IsExposureModeResetRestart);
    // clang-format on
}

// clang-format off
unsigned int KTrigger::GetSoftTrigger()              { SDK4_LOG_CALL(); return Get<unsigned int>(SoftTrigger); }
unsigned int KTrigger::GetTriggerTimer()             { SDK4_LOG_CALL(); return Get<unsigned int>(TriggerTimer); }
void KTrigger::SetTriggerTimer(unsigned int value)   { SDK4_LOG_CALL(); Set<unsigned int>(TriggerTimer, value); }
SDK4_KEXPOSURE KTrigger::GetTriggerDelay()           { SDK4_LOG_CALL(); return Get<SDK4_KEXPOSURE>(TriggerDelay); }
void KTrigger::SetTriggerDelay(SDK4_KEXPOSURE delay) { SDK4_LOG_CALL(); Set<SDK4_KEXPOSURE>(TriggerDelay, delay); }
// clang-format on

void KTrigger::SetSoftTrigger(unsigned int value) {
    SDK4_LOG_CALL();
    // Waits for one readout time, so that the previous image has left the sensor.
    const auto microseconds = Get<unsigned int>(ReadoutTime);
    SDK4_LOG(Info, "Sleep us=" << microseconds);
    usleep(microseconds);
    Set<unsigned int>(SoftTrigger, value);
    SDK4_LOG(Debug, "End");
}

} // namespace SDK4::Control
