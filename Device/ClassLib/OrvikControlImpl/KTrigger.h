#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/ITrigger.h>

namespace SDK4::Control {

/// Software trigger, trigger timer and delay.
class KTrigger : public ITrigger, protected Capability {
public:
    KTrigger(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    unsigned int GetSoftTrigger() override;
    void SetSoftTrigger(unsigned int value) override;
    unsigned int GetTriggerTimer() override;
    void SetTriggerTimer(unsigned int value) override;
    SDK4_KEXPOSURE GetTriggerDelay() override;
    void SetTriggerDelay(SDK4_KEXPOSURE delay) override;

    virtual ~KTrigger() = default;
};

} // namespace SDK4::Control
