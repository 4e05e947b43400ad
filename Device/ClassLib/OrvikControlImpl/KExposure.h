#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IExposure.h>

namespace SDK4::Control {

/// Exposure mode, exposure time, automatic exposure.
class KExposure : public IExposure, protected Capability {
public:
    KExposure(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    SDK4_ENUM_EXPOSUREMODE GetExposureMode() override;
    void SetExposureMode(int mode) override;
    SDK4_KEXPOSURE GetExposure() override;
    void SetExposure(SDK4_KEXPOSURE exposure) override;
    unsigned int GetAutoExposureLevel() override;
    void SetAutoExposureLevel(unsigned int level) override;
    SDK4_ENUM_AET GetAET() override;
    void SetAET(int mode) override;

    ~KExposure(); // not virtual: only the control destroys it

private:
    CBaseRegister<SDK4_KEXPOSURE>* exposureRegister; ///< owned by the register list
};

} // namespace SDK4::Control
