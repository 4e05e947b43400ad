#pragma once

#include <SDK4/Export.h>

namespace SDK4 {

/// Starts and stops image acquisition. The control keeps the state itself: a new control is stopped, whatever the
/// camera is doing, and the state changes only if the write to the camera succeeded.
///
/// While acquisition runs, the Orvik family locks colour coding, readout area and binning (SDK4_ERR_CANTSETFEATURE);
/// the M2VX family refuses packet size, packet delay and settings loads (SDK4_ERR_ACQUISITIONRUNNING).
class SDK4_PUBLIC IStreamControl {
public:
    /// Starts acquisition: writes 1 to register 0x00088134.
    virtual void Start() = 0;

    /// Stops acquisition: writes 0 to register 0x00088138. The write is the command; the value has no meaning.
    virtual void Stop() = 0;
};

} // namespace SDK4
