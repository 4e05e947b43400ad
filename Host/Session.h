#pragma once

#include "Host/Camera.h"
#include "Host/Plugin.h"
#include "Host/SimulatedConnection.h"
#include "Host/TracingPort.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Host {

/// Whether a text means a camera where it may mean a file: the name of a model, or gige:ADDRESS.
[[nodiscard]] bool IsCamera(const std::string& text);

/// How a camera is reached and opened.
struct CameraOptions {
    std::int32_t index = 0;           ///< with which the control is created
    SimulationOptions simulation{};   ///< of a simulated camera
    std::string forcedModel{};        ///< drives a camera on the network as that, whatever it calls itself
    TracingPort::Observer accesses{}; ///< told of every port access; without it the port remembers them
};

/// An opened camera: the camera, the port to it, and the control that the plug-in built on the port.
class Session {
public:
    /// Switches a simulated camera on, or connects to one on the network, and opens it.
    /// @param camera a model, which is simulated, or gige:ADDRESS
    /// @throws OpenError for a model that the plug-in does not serve; for a camera that cannot be reached; for what
    ///         SimulatedConnection does not admit
    /// @throws UsageError for what is no camera; for options that do not fit it; for a fault that cannot be injected
    Session(const Plugin& plugin, const std::string& camera, const CameraOptions& options = {});

    [[nodiscard]] const std::string& Model() const { return model; }
    [[nodiscard]] Host::Connection& Connection() { return *connection; }
    [[nodiscard]] TracingPort& Port() { return port; }

    /// The interface of the control, or null if the control does not have it.
    template <typename Interface> [[nodiscard]] Interface* As() const {
        return dynamic_cast<Interface*>(control.get());
    }

    /// The functions of the control.
    /// @throws OpenError for a control of a family whose functions are not known
    [[nodiscard]] Host::Camera Camera() const { return {*control, model}; }

    /// Opens the same camera once more, on the same port.
    /// @throws OpenError; ChannelLost
    [[nodiscard]] Control CreateControl(std::int32_t index);

private:
    /// A camera that is reached, and what it is.
    struct Connected {
        std::unique_ptr<Host::Connection> connection;
        std::string model;
    };
    [[nodiscard]] static Connected Connect(const Plugin& plugin, const std::string& camera,
                                           const CameraOptions& options);
    Session(const Plugin& plugin, Connected connected, const CameraOptions& options);

    // In this order: the control goes first, the camera and the name that the control points to go last.
    const Plugin& plugin;
    std::string model;
    std::unique_ptr<Host::Connection> connection;
    TracingPort port;
    Control control;
};

} // namespace Host
