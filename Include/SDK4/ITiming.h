#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// Timing of the sensor. Orvik only.
class SDK4_PUBLIC ITiming {
public:
    /// Pixel clock in hertz. Read afresh after settings were loaded. Register 0x0A090000.
    virtual unsigned int GetPixelClock() = 0;

    /// Time that one readout of the sensor takes, in microseconds. Read afresh after readout area or binning were set.
    /// Register 0x0A0A0000.
    virtual unsigned int GetReadoutTime() = 0;

    /// Sets the readout time in microseconds; not checked. The camera may round it: the next read fetches what it
    /// holds, and so does the next read of exposure and frame duration.
    virtual void SetReadoutTime(unsigned int microseconds) = 0;

    /// Time from frame to frame, in microseconds. Read afresh after exposure, readout time or colour coding were
    /// written, and after all that makes one of these stale. Register 0x28040000.
    virtual unsigned int GetFrameDuration() = 0;
};

} // namespace SDK4::Control
