#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IRoa.h>

namespace SDK4::Control {

/// The readout area and its limits.
class KRoa : public IRoa, protected Capability {
public:
    KRoa(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    SDK4_KAREA GetReadoutArea() override;
    void SetReadoutArea(SDK4_KAREA area) override;
    SDK4_KAREA GetFrameMask() override;
    void SetFrameMask(SDK4_KAREA area) override;
    SDK4_KAREA GetReadoutAreaLimits(int domain) override;

    virtual ~KRoa() = default;
};

} // namespace SDK4::Control
