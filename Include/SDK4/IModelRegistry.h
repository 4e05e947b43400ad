#pragma once

#include <SDK4/Export.h>

/// The host's model registry, passed to InitLibrary. The host implements and owns it.
class SDK4_PUBLIC IModelRegistry {
public:
    /// Called once for each model that the library serves.
    /// @param modelName the name that CreateObject takes; it is compared exactly
    /// @param libraryKey "qdv12" for every model of this library
    virtual void RegisterModel(const char* modelName, const char* libraryKey) = 0;
};
