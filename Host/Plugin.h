#pragma once

#include "Errors.h"

#include <SDK4/SDK4.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace Host {

/// What CreateObject made, given back through Release.
struct ReleaseControl {
    void operator()(IDynamicObject* control) const { control->Release(); }
};
using Control = std::unique_ptr<IDynamicObject, ReleaseControl>;

/// A model name and the key of the library that serves it, as InitLibrary registers them.
struct Model {
    std::string name;
    std::string key;
};

/// A loaded camera plug-in. It must outlive every control that it creates.
class Plugin {
public:
    /// Loads the plug-in and asks it for its models.
    /// @throw OpenError with the path, the loader's words or the exports that are missing.
    explicit Plugin(const std::filesystem::path& path);

    [[nodiscard]] const std::vector<Model>& Models() const { return models; }

    /// Opens a camera.
    /// @param model what the camera calls itself; the control keeps the pointer
    /// @param port  reaches the camera; must outlive the control
    /// @param index the camera index; 2 turns the caches of the Orvik control off, 3 has the M2VX control read the
    ///              camera's settings once, now, and remember them
    /// @return null for a model that the plug-in does not serve
    [[nodiscard]] Control Create(const char* model, SDK4::IControlPort& port, std::int32_t index) const;

private:
    using InitLibrary = void(void* registry);
    using CreateObject = void*(const char* model, void* port, std::int32_t index);

    struct CloseLibrary {
        void operator()(void* handle) const;
    };

    std::unique_ptr<void, CloseLibrary> library;
    CreateObject* create = nullptr;
    std::vector<Model> models;
};

/// The plug-in that lies beside the running program.
[[nodiscard]] std::filesystem::path PluginBesideProgram();

} // namespace Host
