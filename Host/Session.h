#pragma once

#include "Camera.h"
#include "Plugin.h"
#include "TracingPort.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Simulation {
class SimulatedCamera;
}

namespace Host {

/// How a camera is switched on and opened.
struct CameraOptions {
    std::int32_t index = 0;            ///< with which the control is created
    std::uint64_t seed = 0;            ///< of the world around the camera
    std::string state{};               ///< a file that holds the camera between two runs; none if empty
    std::vector<std::string> faults{}; ///< to be planted in the camera
    TracingPort::Observer accesses{};  ///< told of every port access; without it the port remembers them
};

/// An opened camera: the camera, the port to it, and the control that the plug-in built on the port.
class Session {
public:
    /// Switches a simulated camera on and opens it.
    /// @throw OpenError for a model that the plug-in does not serve, or that nothing simulates; for a state file that
    ///        is no such file
    /// @throw UsageError for a fault that cannot be planted
    Session(const Plugin& plugin, const std::string& model, const CameraOptions& options = {});
    ~Session();

    [[nodiscard]] const std::string& Model() const { return model; }
    [[nodiscard]] Simulation::SimulatedCamera& Camera() { return *camera; }
    [[nodiscard]] TracingPort& Port() { return port; }

    /// The interface of the control, or null if the control does not have it.
    template <typename Interface> [[nodiscard]] Interface* As() const {
        return dynamic_cast<Interface*>(control.get());
    }

    /// The functions of the control.
    /// @throw OpenError for a control of a family whose functions are not known
    [[nodiscard]] Host::Camera Functions() const { return {*control, model}; }

    /// Has the state file, if there is one, hold the camera as it is now.
    void SaveState() const;

    /// Opens the same camera once more, on the same port.
    [[nodiscard]] Control OpenAgain(std::int32_t index);

private:
    // In this order: the control goes first, the camera and the name that the control points to go last.
    const Plugin& plugin;
    std::string model;
    std::string state;
    std::unique_ptr<Simulation::SimulatedCamera> camera;
    TracingPort port;
    Control control;
};

} // namespace Host
