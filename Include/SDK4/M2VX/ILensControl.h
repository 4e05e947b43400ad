#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control::M2VX {

/// The registers of the lens unit. Channels and words are specific to the camera and not checked. Register 0x0C080000,
/// indexed by the channel. Always read from the camera.
class SDK4_PUBLIC ILensControl {
public:
    /// The word of a channel.
    virtual unsigned int GetLensControl(unsigned int channel) = 0;

    /// Writes the word of a channel.
    virtual void SetLensControl(unsigned int channel, unsigned int value) = 0;
};

} // namespace SDK4::Control::M2VX
