#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Colour balance, light source, saturation, automatic white set. Orvik only. Colour cameras only (bit 16 of the
/// function model), except the light source: on a monochrome camera the other operations throw
/// SDK4_ERR_NOT_IMPLEMENTED.
///
/// While automatic white set is on, the camera adjusts the colour balance: writing it is locked and, once the mode was
/// set through this control, every read goes to the camera. Switching the mode off turns caching of the balance on,
/// even for a control created with index 2.
class SDK4_PUBLIC IColor {
public:
    /// Gains of the colour channels in steps of the camera, 0 to 255 each. Register 0x15010000.
    virtual SDK4_KRGB GetColorBalance() = 0;

    /// Sets the gains of the colour channels, 0 to 255 each.
    /// @throws SDK4_ERR_OUTOFRANGE after the balance was written with 255 for each greater channel.
    /// @throws SDK4_ERR_CANTSETFEATURE while automatic white set is on; nothing is written.
    virtual void SetColorBalance(SDK4_KRGB balance) = 0;

    /// Light source preset; a code of the camera. Register 0x15020000.
    /// @throws SDK4_ERR_DISABLED in a raw colour coding (150, 151, 153).
    virtual SDK4_ENUM_LIGHTSOURCE GetLightSource() = 0;

    /// Chooses the light source preset, 0 to 3.
    /// @throws SDK4_ERR_DISABLED in a raw colour coding (150, 151, 153); nothing is written.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other preset; nothing is written.
    virtual void SetLightSource(int source) = 0;

    /// Saturation in steps of the camera, 0 to 255. Register 0x15040000.
    virtual unsigned int GetColorSaturation() = 0;

    /// Sets the saturation, 0 to 255.
    /// @throws SDK4_ERR_OUTOFRANGE after 255 was written.
    virtual void SetColorSaturation(unsigned int saturation) = 0;

    /// Automatic white set: 0 is off. Never cached. Register 0x46040000.
    virtual SDK4_ENUM_WHITESET GetAutoWhiteset() = 0;

    /// Switches automatic white set: 0 off, 1 or 2 on. Invalidates the colour balance.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other mode; nothing is written and caching stays as it is.
    virtual void SetAutoWhiteset(int mode) = 0;
};

} // namespace SDK4::Control
