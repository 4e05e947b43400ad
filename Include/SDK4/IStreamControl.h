#pragma once

#include <SDK4/Export.h>

namespace SDK4 {

/// Starts and stops image acquisition.
class SDK4_PUBLIC IStreamControl {
public:
    virtual void Start() = 0;
    virtual void Stop() = 0;
};

} // namespace SDK4
