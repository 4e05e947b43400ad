#pragma once

#include <SDK4/Export.h>

namespace SDK4 {

/// The control of one camera.
class SDK4_PUBLIC IControl {
public:
    /// The family of the control: "Orvik" or "M2VX". Valid while the library is loaded. Does not access the camera.
    virtual const char* GetClassID() = 0;
};

} // namespace SDK4
