#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IColor.h>

#include <string>

namespace SDK4::Control {

/// Colour balance, light source, saturation, automatic white set.
class KColor : public IColor, protected Capability {
public:
    KColor(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache, std::string model);

    SDK4_KRGB GetColorBalance() override;
    void SetColorBalance(SDK4_KRGB balance) override;
    SDK4_ENUM_LIGHTSOURCE GetLightSource() override;
    void SetLightSource(int source) override;
    unsigned int GetColorSaturation() override;
    void SetColorSaturation(unsigned int saturation) override;
    SDK4_ENUM_WHITESET GetAutoWhiteset() override;
    void SetAutoWhiteset(int mode) override;

    virtual ~KColor() = default;

private:
    CBaseRegister<SDK4_KRGB>* colorBalanceRegister; ///< owned by the register list
};

} // namespace SDK4::Control
