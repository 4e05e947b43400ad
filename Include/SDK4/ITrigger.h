#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Software trigger, trigger timer, trigger delay. Orvik only; nothing is cached.
class SDK4_PUBLIC ITrigger {
public:
    /// The word that the camera holds for the software trigger. Register 0x0A070000.
    virtual unsigned int GetSoftTrigger() = 0;

    /// Triggers: waits for one readout time (ITiming::GetReadoutTime), so that the last image has left the sensor, then
    /// writes @p value; not checked. Blocks the caller for that long. Register 0x0A070000.
    virtual void SetSoftTrigger(unsigned int value) = 0;

    /// The trigger timer, in units of the camera. Register 0x0A080000.
    virtual unsigned int GetTriggerTimer() = 0;

    /// Sets the trigger timer; not checked.
    virtual void SetTriggerTimer(unsigned int value) = 0;

    /// Delay from trigger to exposure: time base and count of it. Register 0x0A100000.
    /// @throws SDK4_ERR_DISABLED outside exposure mode 3 (reset-restart).
    virtual SDK4_KEXPOSURE GetTriggerDelay() = 0;

    /// Sets the delay from trigger to exposure. The camera takes bases 0 to 7 and counts to 0x1FFFFF; not checked.
    /// @throws SDK4_ERR_DISABLED outside exposure mode 3 (reset-restart); nothing is written.
    virtual void SetTriggerDelay(SDK4_KEXPOSURE delay) = 0;
};

} // namespace SDK4::Control
