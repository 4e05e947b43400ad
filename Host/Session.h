#pragma once

#include "Plugin.h"
#include "TracingPort.h"

#include <SimulatedCamera.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Host {

/// An opened camera: the camera, the port to it, and the control that the plug-in built on the port.
class Session {
public:
    /// Switches a simulated camera on and opens it.
    /// @throw OpenError for a model that the plug-in does not serve, or that nothing simulates.
    Session(const Plugin& plugin, const std::string& model, std::int32_t index = 0);

    [[nodiscard]] const std::string& Model() const { return model; }
    [[nodiscard]] Simulation::SimulatedCamera& Camera() { return *camera; }
    [[nodiscard]] TracingPort& Port() { return port; }

    /// The interface of the control, or null if the control does not have it.
    template <typename Interface> [[nodiscard]] Interface* As() const {
        return dynamic_cast<Interface*>(control.get());
    }

    /// Opens the same camera once more, on the same port.
    [[nodiscard]] Control OpenAgain(std::int32_t index);

private:
    // In this order: the control goes first, the camera and the name that the control points to go last.
    const Plugin& plugin;
    std::string model;
    std::unique_ptr<Simulation::SimulatedCamera> camera;
    TracingPort port;
    Control control;
};

} // namespace Host
