#pragma once

#include <SDK4/Export.h>

/// An object of the library that the host holds. What CreateObject returns is one.
class SDK4_PUBLIC IDynamicObject {
public:
    virtual void Release() = 0;
};
