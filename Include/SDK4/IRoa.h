#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// The part of the sensor that is read out.
class SDK4_PUBLIC IRoa {
public:
    virtual SDK4_KAREA GetReadoutArea() = 0;
    virtual void SetReadoutArea(SDK4_KAREA area) = 0;
    virtual SDK4_KAREA GetFrameMask() = 0;
    virtual void SetFrameMask(SDK4_KAREA area) = 0;
    virtual SDK4_KAREA GetReadoutAreaLimits(int domain) = 0;
};

} // namespace SDK4::Control
