#pragma once

#include "Host/Camera.h"
#include "Host/Plugin.h"
#include "Host/Recording/Recorder.h"
#include "Host/SimulatedConnection.h"
#include "Host/TracingPort.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Host {

/// How a camera is reached and opened.
struct CameraOptions {
    std::optional<std::int32_t> index = 0; ///< camera index for CreateObject; by default 2, or that of a recording
    SimulationOptions simulation{};        ///< for a simulated camera
    std::string forcedModel{};             ///< treats a camera on the network as this model, whatever it reports
    bool loose = false;                    ///< answers from a recording by address
    Recorder* recorder = nullptr;          ///< gets every port access
    bool readOnly = false;                 ///< never takes control of a camera on the network
    TracingPort::Observer accesses{};      ///< gets every port access; without it the port records them
};

/// The options for a camera that is opened beside another one, without those that apply to the other one only.
/// @param other empty for the camera of a shell, which took all of them
[[nodiscard]] CameraOptions OptionsBeside(const std::string& other, const std::string& camera, CameraOptions options);

/// An opened camera: the camera, the port to it, and the control that the plug-in built on the port.
class Session {
public:
    /// Creates a simulated camera, or connects to one on the network, and opens it.
    /// @param camera as ParseCameraName takes it
    /// @throws OpenError for a model that the plug-in does not serve, for a camera that cannot be reached, and as
    ///         SimulatedConnection
    /// @throws UsageError for an invalid camera, options that do not apply to it, or an invalid fault
    Session(const Plugin& plugin, const std::string& camera, const CameraOptions& options = {});

    [[nodiscard]] const std::string& Model() const { return model; }
    /// The IPv4 address of a camera on the network, else empty.
    [[nodiscard]] const std::string& Address() const { return address; }
    [[nodiscard]] Host::Connection& Connection() { return *connection; }
    [[nodiscard]] TracingPort& Port() { return port; }

    /// The interface of the control, or null if the control does not have it.
    template <typename Interface> [[nodiscard]] Interface* As() const {
        return dynamic_cast<Interface*>(control.get());
    }

    /// The functions of the control.
    /// @throws OpenError for an unknown family
    [[nodiscard]] Host::Camera Camera() { return {*control, port, model, acquires}; }

    /// Starts or stops acquisition through the control, which locks some functions while it runs.
    /// @throws std::runtime_error for a control without acquisition; ChannelError
    void Acquire(bool on);
    [[nodiscard]] bool Acquires() const { return acquires; }

    /// Opens the same camera once more, on the same port.
    /// @throws OpenError; ChannelLost
    [[nodiscard]] Control CreateControl(std::int32_t cameraIndex);

    /// Closes the control of a recorded camera and opens it again, on the same port.
    /// @throws as CreateControl
    void Reopen();

private:
    /// A connection and the model of its camera.
    struct Connected {
        std::unique_ptr<Host::Connection> connection;
        std::string model;
        std::string address;
        std::int32_t index = 2;
    };
    [[nodiscard]] static Connected Replay(const std::string& file, const CameraOptions& options);
    [[nodiscard]] static Connected Connect(const Plugin& plugin, const std::string& camera,
                                           const CameraOptions& options);
    Session(const Plugin& plugin, Connected connected, const CameraOptions& options);

    // In this order: the control is destroyed first, then the camera and the model name that it uses.
    const Plugin& plugin;
    std::string model;
    std::string address;
    std::unique_ptr<Host::Connection> connection;
    TracingPort port;
    std::int32_t index;
    Control control;
    bool acquires = false;
};

} // namespace Host
