#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Software trigger, trigger timer and delay.
class SDK4_PUBLIC ITrigger {
public:
    virtual unsigned int GetSoftTrigger() = 0;
    virtual void SetSoftTrigger(unsigned int value) = 0;
    virtual unsigned int GetTriggerTimer() = 0;
    virtual void SetTriggerTimer(unsigned int value) = 0;
    virtual SDK4_KEXPOSURE GetTriggerDelay() = 0;
    virtual void SetTriggerDelay(SDK4_KEXPOSURE delay) = 0;
};

} // namespace SDK4::Control
