#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// The general-purpose I/O lines.
class SDK4_PUBLIC IGPIO {
public:
    virtual SDK4_ENUM_IOMODE GetIoMode(unsigned int line) = 0;
    virtual void SetIoMode(unsigned int line, int mode) = 0;
    virtual SDK4_ENUM_IOPORT GetIoPort(unsigned int line) = 0;
    virtual void SetIoPort(unsigned int line, int port) = 0;
    virtual SDK4_ENUM_IOPOLARITY GetIoPolarity(unsigned int line) = 0;
    virtual void SetIoPolarity(unsigned int line, int polarity) = 0;
    virtual unsigned int GetIoDelay(unsigned int line) = 0;
    virtual void SetIoDelay(unsigned int line, unsigned int delay) = 0;
};

} // namespace SDK4::Control
