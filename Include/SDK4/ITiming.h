#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// Timing of the sensor. Orvik only.
class SDK4_PUBLIC ITiming {
public:
    /// Pixel clock in hertz. Invalidated by LoadSettings. Register 0x0A090000.
    virtual unsigned int GetPixelClock() = 0;

    /// Time of one sensor readout, in microseconds. Invalidated by readout area and binning. Register 0x0A0A0000.
    virtual unsigned int GetReadoutTime() = 0;

    /// Sets the readout time in microseconds; not checked. The camera may round it, so the next read goes to the
    /// camera. Invalidates exposure and frame duration.
    virtual void SetReadoutTime(unsigned int microseconds) = 0;

    /// Time from frame to frame, in microseconds. Invalidated by exposure, readout time and colour coding, and by
    /// everything that invalidates one of these. Register 0x28040000.
    virtual unsigned int GetFrameDuration() = 0;
};

} // namespace SDK4::Control
