#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Binning of pixels. Orvik only, monochrome cameras only: on a colour camera (bit 16 of the function model) both
/// operations throw SDK4_ERR_NOT_IMPLEMENTED.
class SDK4_PUBLIC IBinning {
public:
    /// The binning factors, 1 to 8: how many columns and lines are combined into one. Register 0x0A0B0000.
    virtual SDK4_KBINNING GetBinning() = 0;

    /// Sets the binning factors, 1 to 8 each. Invalidates the readout area, its limits and everything that
    /// SetReadoutArea invalidates.
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other factor, before every other check; nothing is written.
    /// @throws SDK4_ERR_CANTSETFEATURE while acquisition runs; nothing is written.
    virtual void SetBinning(SDK4_KBINNING binning) = 0;
};

} // namespace SDK4::Control
