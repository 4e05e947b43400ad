#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// The six general-purpose I/O lines. Orvik only. Every operation takes the line first, 0 to 5, and throws
/// SDK4_ERR_INVALID_PARAMETER for any other, before any access. The registers are indexed by the line.
class SDK4_PUBLIC IGPIO {
public:
    /// Direction of the line; a code of the camera. Register 0x66020000.
    virtual SDK4_ENUM_IOMODE GetIoMode(unsigned int line) = 0;

    /// Sets the direction of the line, 0 or 1.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other; nothing is written.
    virtual void SetIoMode(unsigned int line, int mode) = 0;

    /// What the line carries; a code of the camera. Register 0x66030000.
    virtual SDK4_ENUM_IOPORT GetIoPort(unsigned int line) = 0;

    /// Chooses what the line carries, 0 to 4.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other; nothing is written.
    virtual void SetIoPort(unsigned int line, int port) = 0;

    /// Polarity of the line; a code of the camera. Register 0x660F0000.
    virtual SDK4_ENUM_IOPOLARITY GetIoPolarity(unsigned int line) = 0;

    /// Sets the polarity of the line, 0 or 1.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other; nothing is written.
    virtual void SetIoPolarity(unsigned int line, int polarity) = 0;

    /// Delay of the line, in units of the camera. Register 0x66110000.
    virtual unsigned int GetIoDelay(unsigned int line) = 0;

    /// Sets the delay of the line; not checked.
    virtual void SetIoDelay(unsigned int line, unsigned int delay) = 0;
};

} // namespace SDK4::Control
