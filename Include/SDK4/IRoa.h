#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// The part of the sensor that is read out. Areas are in pixels. Orvik only.
class SDK4_PUBLIC IRoa {
public:
    /// The readout area. Invalidated by SetBinning. Register 0x28050000.
    virtual SDK4_KAREA GetReadoutArea() = 0;

    /// Sets the readout area. Each field is clamped to the same field of the limits MIN and MAX, which are read first;
    /// start and end are not compared. Invalidates image size, readout time, frame duration, exposure, overlay
    /// positions and measure windows, but not the limit ACTIVE.
    /// @throws SDK4_ERR_OUTOFRANGE after the area was written with the fields clamped to their limits.
    /// @throws SDK4_ERR_CANTSETFEATURE while acquisition runs; nothing is written.
    virtual void SetReadoutArea(SDK4_KAREA area) = 0;

    /// The part of the frame that is masked.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always.
    virtual SDK4_KAREA GetFrameMask() = 0;

    /// Masks a part of the frame.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED always; nothing is written.
    virtual void SetFrameMask(SDK4_KAREA area) = 0;

    /// A limit of the readout area: the smallest admitted corners (0), the largest (1), or the area active in the
    /// sensor (2). Invalidated by SetBinning. Register 0x28090000, indexed by @p domain.
    /// @param domain an SDK4_ENUM_ROADOMAIN
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other domain, before any access.
    virtual SDK4_KAREA GetReadoutAreaLimits(int domain) = 0;
};

} // namespace SDK4::Control
