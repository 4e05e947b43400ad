#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IStreamControl.h>

namespace SDK4::Control {

/// Starts and stops acquisition, and remembers which was last. The camera is never read.
class KStreamControl : public IStreamControl, protected Capability {
public:
    KStreamControl(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    void Start() override;
    void Stop() override;

    [[nodiscard]] bool IsRunning() const { return running; }

private:
    bool running = false;
};

} // namespace SDK4::Control
