#pragma once

#include <SDK4/Export.h>

/// An object of the library that the host holds. CreateObject returns one; the host reaches every other interface from
/// it with dynamic_cast, which yields null for an interface that the camera's family does not have.
class SDK4_PUBLIC IDynamicObject {
public:
    /// Destroys the object; the only way to give it back, called exactly once. Afterwards every interface of the
    /// object, its media type and the texts that it returned are invalid. The port stays the host's.
    virtual void Release() = 0;
};
