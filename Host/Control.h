#pragma once

#include <SDK4/IDynamicObject.h>

#include <memory>

namespace Host {

/// An object from CreateObject, destroyed by Release.
struct ReleaseControl {
    void operator()(IDynamicObject* control) const { control->Release(); }
};
using Control = std::unique_ptr<IDynamicObject, ReleaseControl>;

} // namespace Host
