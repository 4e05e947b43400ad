#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IACC.h>
#include <SDK4/IDigitalEnhancement.h>

namespace SDK4::Control {

/// Brightness, contrast, sharpness and automatic contrast control.
class KDigitalEnhancement : public IDigitalEnhancement, public IACC, protected Capability {
public:
    KDigitalEnhancement(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    unsigned int GetBrightness() override;
    void SetBrightness(unsigned int brightness) override;
    unsigned int GetContrast() override;
    void SetContrast(unsigned int contrast) override;
    unsigned int GetSharpness() override;
    void SetSharpness(unsigned int sharpness) override;
    SDK4_ENUM_HISTOEQUAL GetHistogramEqualization() override;
    void SetHistogramEqualization(int mode) override;

    virtual ~KDigitalEnhancement() = default;

    SDK4_ENUM_SWITCH GetACC() override;
    void SetACC(int mode) override;

private:
    CBaseRegister<unsigned int>* brightnessRegister; ///< owned by the register list
    CBaseRegister<unsigned int>* contrastRegister;   ///< owned by the register list
};

} // namespace SDK4::Control
