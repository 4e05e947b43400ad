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

/// The result of loading a plug-in.
struct PluginCheck {
    std::string path;
    std::string loadError;                             ///< the message of the loader, else empty
    std::string hint;                                  ///< what to do about it, if known
    std::vector<std::pair<std::string, bool>> exports; ///< name, and whether it was found; empty if not loaded
    std::vector<Model> models;

    /// What is wrong with the plug-in, or empty.
    [[nodiscard]] std::string Fault() const;
};

/// Loads a plug-in and checks it.
[[nodiscard]] PluginCheck CheckPlugin(const std::string& path);

/// A loaded camera plug-in. It must outlive every control that it creates.
class Plugin {
public:
    /// Loads the plug-in and gets its models.
    /// @throws OpenError with what is wrong with it
    explicit Plugin(const std::string& path);

    [[nodiscard]] const std::vector<Model>& Models() const { return check.models; }
    [[nodiscard]] std::vector<std::string> ModelNames() const;
    [[nodiscard]] bool Serves(const std::string& model) const;

    /// Opens a camera.
    /// @param model the model name that the camera reports; the control keeps the pointer
    /// @param port must outlive the control
    /// @param index the camera index: 2 makes an Orvik control uncached, 3 makes an M2VX control cached
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

/// The plug-in in the installed module folder, else the one next to the program.
[[nodiscard]] std::string DefaultPlugin();

} // namespace Host
