#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Who the camera is.
class SDK4_PUBLIC IGufi {
public:
    virtual const char* GetDeviceName() = 0;
    virtual const char* GetSerialNumber() = 0;
    virtual unsigned int GetFunctionModelID() = 0;
    virtual SDK4_KVERSION GetFunctionModelVersion() = 0;
    virtual SDK4_KREVISION GetRevision() = 0;
    virtual const char* GetSoftwareBuild() = 0;
    virtual SDK4_KVERSION GetSoftwareVersion() = 0;
    virtual SDK4_KVERSION GetHardwareVersion() = 0;
    virtual SDK4_KVERSION GetFirmwareVersion() = 0;
};

} // namespace SDK4::Control
