#pragma once

#include <SDK4/SDK4.h>

#include <cstdint>
#include <memory>

namespace Test {

/// The built library, loaded as a host loads it. Sanitized builds keep it loaded, so that reports have the names of its
/// functions.
class Plugin {
public:
    Plugin();
    ~Plugin();
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    static const char* Path();

    void (*initLibrary)(void* registry);
    void* (*createObject)(const char* modelName, void* port, std::int32_t index);

private:
    void* handle;
};

/// A camera opened by the plug-in, or null for an unknown model. Released with Release.
class Camera {
public:
    Camera(const Plugin& plugin, const char* model, SDK4::IControlPort* port, std::int32_t index = 0)
        : object(static_cast<IDynamicObject*>(plugin.createObject(model, port, index))) {}

    [[nodiscard]] IDynamicObject* Object() const { return object.get(); }

    /// An interface of the camera. @throws std::bad_cast if it does not have it
    template <typename Interface> Interface& As() const { return dynamic_cast<Interface&>(*object); }

private:
    struct Release {
        void operator()(IDynamicObject* released) const { released->Release(); }
    };
    std::unique_ptr<IDynamicObject, Release> object;
};

} // namespace Test
