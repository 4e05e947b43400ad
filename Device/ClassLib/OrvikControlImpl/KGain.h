#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IGain.h>

namespace SDK4::Control {

/// Gain and automatic gain control.
class KGain : public IGain, protected Capability {
public:
    KGain(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    unsigned int GetGain() override;
    void SetGain(unsigned int gain) override;
    SDK4_ENUM_AGC GetAGC() override;
    void SetAGC(int mode) override;

    virtual ~KGain() = default;

private:
    CBaseRegister<unsigned int>* gainRegister; ///< owned by the register list
};

} // namespace SDK4::Control
