#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control::M2VX {

/// The registers of the motor unit, channels 0 to 255; their meaning is specific to the camera. Register 0x6E140000,
/// indexed by the channel. Any other channel throws SDK4_ERR_INVALID_PARAMETER before any access.
class SDK4_PUBLIC IMotorControl {
public:
    /// The word of a channel. A cached control returns the word read at opening, even after SetMotorControl: a motor
    /// moves by itself, so the written word is not stored.
    virtual unsigned int GetMotorControl(unsigned int channel) = 0;

    /// Writes the word of a channel, 0 to 65535.
    /// @throws SDK4_ERR_OUTOFRANGE above; nothing is written.
    virtual void SetMotorControl(unsigned int channel, unsigned int value) = 0;
};

} // namespace SDK4::Control::M2VX
