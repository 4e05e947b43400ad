#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Exposure mode, exposure time, automatic exposure. Orvik only.
///
/// While automatic exposure is on, the camera adjusts the exposure: writing it is locked and, once the mode was set
/// through this control, every read goes to the camera. Switching automatic exposure off turns caching of the exposure
/// on, even for a control created with index 2; a read after SetExposure then returns the value as written.
class SDK4_PUBLIC IExposure {
public:
    /// How exposures are started. Register 0x0A020000.
    virtual SDK4_ENUM_EXPOSUREMODE GetExposureMode() = 0;

    /// Sets how exposures are started, 1 to 4. Invalidates the exposure. The trigger delay is available in mode 3 only.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other mode; nothing is written.
    virtual void SetExposureMode(int mode) = 0;

    /// Exposure time: time base and count of it. Invalidated by exposure mode, automatic exposure, readout time,
    /// readout area and binning. Register 0x0A030000.
    virtual SDK4_KEXPOSURE GetExposure() = 0;

    /// Sets the exposure time; not checked. The camera may round it, so the next read goes to the camera until
    /// automatic exposure is switched for the first time. Invalidates the frame duration.
    /// @throws SDK4_ERR_CANTSETFEATURE while automatic exposure is on; nothing is written.
    virtual void SetExposure(SDK4_KEXPOSURE exposure) = 0;

    /// Target brightness of automatic exposure in steps of the camera, 0 to 255. Register 0x46030000.
    virtual unsigned int GetAutoExposureLevel() = 0;

    /// Sets the target brightness of automatic exposure, 0 to 255.
    /// @throws SDK4_ERR_OUTOFRANGE after 255 was written.
    virtual void SetAutoExposureLevel(unsigned int level) = 0;

    /// Automatic exposure: 0 is off. Never cached. Register 0x46010000.
    virtual SDK4_ENUM_AET GetAET() = 0;

    /// Switches automatic exposure: 0 off, 1 or 2 on. Invalidates the exposure.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other mode; nothing is written and caching stays as it is.
    virtual void SetAET(int mode) = 0;
};

} // namespace SDK4::Control
