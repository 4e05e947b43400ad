#pragma once

#include <SDK4/Export.h>
#include <SDK4/Records.h>

namespace SDK4::Control {

/// Binning of pixels.
class SDK4_PUBLIC IBinning {
public:
    virtual SDK4_KBINNING GetBinning() = 0;
    virtual void SetBinning(SDK4_KBINNING binning) = 0;
};

} // namespace SDK4::Control
