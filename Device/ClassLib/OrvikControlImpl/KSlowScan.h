#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/ISlowScan.h>

#include <string>

namespace SDK4::Control {

/// Slow readout, not implemented by this family. The register exists because the timing registers depend on it.
class KSlowScan : public ISlowScan, protected Capability {
public:
    KSlowScan(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache, std::string model);

    SDK4_ENUM_SWITCH GetSlowScan() override;
    void SetSlowScan(int mode) override;
};

} // namespace SDK4::Control
