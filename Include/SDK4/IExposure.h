#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Exposure mode, exposure time, automatic exposure.
class SDK4_PUBLIC IExposure {
public:
    virtual SDK4_ENUM_EXPOSUREMODE GetExposureMode() = 0;
    virtual void SetExposureMode(int mode) = 0;
    virtual SDK4_KEXPOSURE GetExposure() = 0;
    virtual void SetExposure(SDK4_KEXPOSURE exposure) = 0;
    virtual unsigned int GetAutoExposureLevel() = 0;
    virtual void SetAutoExposureLevel(unsigned int level) = 0;
    virtual SDK4_ENUM_AET GetAET() = 0;
    virtual void SetAET(int mode) = 0;
};

} // namespace SDK4::Control
