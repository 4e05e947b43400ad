#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IGufi.h>

namespace SDK4::Control {

/// Identity of the camera.
class KGufi : public IGufi, protected Capability {
public:
    KGufi(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    const char* GetDeviceName() override;
    const char* GetSerialNumber() override;
    unsigned int GetFunctionModelID() override;
    SDK4_KVERSION GetFunctionModelVersion() override;
    SDK4_KREVISION GetRevision() override;
    const char* GetSoftwareBuild() override;
    SDK4_KVERSION GetSoftwareVersion() override;
    SDK4_KVERSION GetHardwareVersion() override;
    SDK4_KVERSION GetFirmwareVersion() override;
};

} // namespace SDK4::Control
