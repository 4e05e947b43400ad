#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/ILookUpTable.h>

namespace SDK4::Control {

/// Look-up table and negative image.
class KLookupTable : public ILookUpTable, protected Capability {
public:
    KLookupTable(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    SDK4_ENUM_LUTMODE GetLUTMode() override;
    void SetLUTMode(int mode) override;
    int GetLUTInterpolatorIndex() override;
    void SetLUTInterpolatorIndex(int index) override;
    SDK4_ENUM_SWITCH GetNegativeImage() override;
    void SetNegativeImage(int negative) override;

    virtual ~KLookupTable() = default;
};

} // namespace SDK4::Control
