#pragma once

#include <SDK4/Export.h>

/// The host's model registry, handed to InitLibrary.
class SDK4_PUBLIC IModelRegistry {
public:
    virtual void RegisterModel(const char* modelName, const char* libraryKey) = 0;
};
