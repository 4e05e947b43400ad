#pragma once

#include "OrvikControlImpl/Capability.h"

#include <SDK4/IGPIO.h>

namespace SDK4::Control {

/// The six I/O lines.
class KGPIO : public IGPIO, protected Capability {
public:
    KGPIO(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache);

    SDK4_ENUM_IOMODE GetIoMode(unsigned int line) override;
    void SetIoMode(unsigned int line, int mode) override;
    SDK4_ENUM_IOPORT GetIoPort(unsigned int line) override;
    void SetIoPort(unsigned int line, int port) override;
    SDK4_ENUM_IOPOLARITY GetIoPolarity(unsigned int line) override;
    void SetIoPolarity(unsigned int line, int polarity) override;
    unsigned int GetIoDelay(unsigned int line) override;
    void SetIoDelay(unsigned int line, unsigned int delay) override;
};

} // namespace SDK4::Control
