#pragma once

#include "Host/Control.h"
#include "Host/Errors.h"

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Host {

/// A model name and the key of the library that serves it, as InitLibrary registers them.
struct Model {
    std::string name;
    std::string key;
};

/// What loading a plug-in tells.
struct PluginCheck {
    std::string path;
    std::string loadError;                             ///< why the loader refused it, in the loader's words, else empty
    std::string hint;                                  ///< what to do about that, if it is known
    std::vector<std::pair<std::string, bool>> exports; ///< by name, whether each is there; none if it was not loaded
    std::vector<Model> models;

    /// What is wrong with the plug-in, in a line; empty if it can be used.
    [[nodiscard]] std::string Fault() const;
};

/// Loads a plug-in and finds out all there is to know.
[[nodiscard]] PluginCheck CheckPlugin(const std::string& path);

/// A loaded camera plug-in. It must outlive every control that it creates.
class Plugin {
public:
    /// Loads the plug-in and asks it for its models.
    /// @throws OpenError with what is wrong with it
    explicit Plugin(const std::string& path);

    [[nodiscard]] const std::vector<Model>& Models() const { return check.models; }
    [[nodiscard]] std::vector<std::string> ModelNames() const;
    [[nodiscard]] bool Serves(const std::string& model) const;

    /// Opens a camera.
    /// @param model what the camera calls itself; the control keeps the pointer
    /// @param port  reaches the camera; must outlive the control
    /// @param index the camera index; 2 turns the caches of the Orvik control off, 3 has the M2VX control read the
    ///              camera's settings once, now, and remember them
    /// @return null for a model that the plug-in does not serve
    [[nodiscard]] Control Create(const char* model, SDK4::IControlPort& port, std::int32_t index) const;

private:
    friend PluginCheck CheckPlugin(const std::string& path);
    Plugin() = default;
    void Load(const std::string& path);

    using InitLibrary = void(void* registry);
    using CreateObject = void*(const char* model, void* port, std::int32_t index);

    struct CloseLibrary {
        void operator()(void* handle) const;
    };

    std::unique_ptr<void, CloseLibrary> library;
    CreateObject* create = nullptr;
    PluginCheck check;
};

/// The plug-in that belongs to the running program: that of the installed module folder, or of the build folder.
[[nodiscard]] std::string DefaultPlugin();

} // namespace Host
