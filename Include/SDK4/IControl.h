#pragma once

#include <SDK4/Export.h>

namespace SDK4 {

/// The control of one camera.
class SDK4_PUBLIC IControl {
public:
    virtual const char* GetClassID() = 0;
};

} // namespace SDK4
