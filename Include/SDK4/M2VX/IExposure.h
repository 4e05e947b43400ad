#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control::M2VX {

/// Exposure mode, exposure time and the shutter of twin mode.
class SDK4_PUBLIC IExposure {
public:
    /// How exposures are started; the numbers are those of SDK4_ENUM_EXPOSUREMODE. Register 0x0A020000.
    virtual unsigned int GetExposureMode() = 0;

    /// Sets how exposures are started, 1 to 4. The exposure time can be set in mode 3 only: the mode enables or
    /// disables the property "exposure".
    /// @throws SDK4_ERR_OUTOFRANGE for any other mode; nothing is written.
    /// @throws SDK4_ERR_DISABLED when the host has disabled "exposuremode"; nothing is written.
    virtual void SetExposureMode(unsigned int mode) = 0;

    /// Exposure time in steps of the camera, 1 to 2000. Can be read in every mode. Register 0x0A030000.
    virtual unsigned int GetExposure() = 0;

    /// Sets the exposure time, 1 to 2000.
    /// @throws SDK4_ERR_OUTOFRANGE outside, after the value was written; "exposure" then holds the value read back.
    /// @throws SDK4_ERR_DISABLED after mode 1, 2 or 4 was set, or read at opening by a cached control; nothing is
    ///         written.
    virtual void SetExposure(unsigned int exposure) = 0;

    /// Status of the frame-on-demand unit, a word of the camera; always read from it. Register 0x0A0D0000.
    virtual unsigned int GetFODStatus() = 0;

    /// Offset of the shutter in twin mode, in the steps of the exposure time; always read from the camera.
    /// Register 0x0A130000.
    virtual unsigned int GetTwinModeShutterOffset() = 0;

    /// Sets the offset of the shutter in twin mode. It has no property, so its limits cannot be queried.
    /// @throws SDK4_ERR_OUTOFRANGE for an offset above the greatest exposure time, 2000; nothing is written.
    virtual void SetTwinModeShutterOffset(unsigned int offset) = 0;
};

} // namespace SDK4::Control::M2VX
