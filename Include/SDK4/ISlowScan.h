#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Slow readout of the sensor. Orvik only. No camera of that family has it.
class SDK4_PUBLIC ISlowScan {
public:
    /// Whether the sensor is read out slowly.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always.
    virtual SDK4_ENUM_SWITCH GetSlowScan() = 0;

    /// Reads the sensor out slowly (1) or not (0).
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always; nothing is written.
    virtual void SetSlowScan(int mode) = 0;
};

} // namespace SDK4::Control
