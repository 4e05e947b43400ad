#pragma once

#include <SDK4/Export.h>

/// An object of the library that the host holds. CreateObject returns one; the host reaches every other interface from
/// it with dynamic_cast, which yields null for an interface that the camera's family does not have.
class SDK4_PUBLIC IDynamicObject {
public:
    /// Destroys the object. Call it exactly once; there is no other way to destroy an object. Afterwards every
    /// interface of the object, its media type and the texts that it returned are invalid. The host keeps the port.
    virtual void Release() = 0;
};
