#include "Host/SimulatedConnection.h"

#include "Host/Errors.h"
#include "Host/Pictures/SimulatedPictures.h"

#include "Simulation/CameraState.h"
#include "Simulation/Cameras.h"
#include "Simulation/SimulatedCamera.h"

namespace Host {

namespace {

std::unique_ptr<Simulation::SimulatedCamera> SwitchOn(const std::string& model, const SimulationOptions& options) {
    auto camera = Simulation::MakeCamera(model, options.seed.value_or(0));
    if (!camera) {
        throw OpenError("no simulated camera of model \"" + model + "\"");
    }
    try {
        if (Simulation::HasState(options.state)) {
            Simulation::LoadState(*camera, options.state);
        }
        for (const std::string& fault : options.faults) {
            camera->InjectFault(fault);
        }
    } catch (const Simulation::StateError& error) {
        throw OpenError(error.what());
    } catch (const Simulation::FaultError& error) {
        throw UsageError(error.what());
    }
    return camera;
}

} // namespace

SimulatedConnection::SimulatedConnection(const std::string& model, const SimulationOptions& options)
    : state(options.state),
      seed(options.seed.value_or(0)),
      camera(SwitchOn(model, options)) {}

SimulatedConnection::~SimulatedConnection() = default;

SDK4::IControlPort& SimulatedConnection::Port() { return *camera; }

void SimulatedConnection::Wait(std::chrono::microseconds time) { camera->Advance(time); }

std::unique_ptr<PictureSource> SimulatedConnection::OpenStream(const PictureFormat& /*format*/) {
    if (!acquisition) {
        acquisition = std::make_unique<Simulation::Acquisition>(*camera);
    }
    return std::make_unique<SimulatedPictures>(*camera, *acquisition, Simulation::World(seed));
}

void SimulatedConnection::SaveState() const {
    if (!state.empty()) {
        Simulation::SaveState(*camera, state);
    }
}

} // namespace Host
