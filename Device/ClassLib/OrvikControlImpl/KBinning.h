#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IBinning.h>

#include <string>

namespace SDK4::Control {

/// Binning, on mono cameras.
class KBinning : public IBinning, protected Capability {
public:
    KBinning(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache, std::string model);

    SDK4_KBINNING GetBinning() override;
    void SetBinning(SDK4_KBINNING binning) override;

    virtual ~KBinning() = default;
};

} // namespace SDK4::Control
