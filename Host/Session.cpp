#include "Session.h"

#include "Nearest.h"

#include <CameraState.h>
#include <Cameras.h>
#include <SimulatedCamera.h>

#include <algorithm>
#include <filesystem>

namespace Host {

namespace {

std::unique_ptr<Simulation::SimulatedCamera> SwitchOn(const Plugin& plugin, const std::string& model,
                                                      const CameraOptions& options) {
    std::vector<std::string> known;
    for (const Model& served : plugin.Models()) {
        known.push_back(served.name);
    }
    if (std::find(known.begin(), known.end(), model) == known.end()) {
        throw OpenError("unknown model \"" + model + '"' + Suggestion(model, known));
    }
    auto camera = Simulation::MakeCamera(model, {.seed = options.seed});
    if (!camera) {
        throw OpenError("no simulated camera of model \"" + model + "\"");
    }
    try {
        if (std::filesystem::exists(options.state)) {
            Simulation::LoadState(*camera, options.state);
        }
        for (const std::string& fault : options.faults) {
            camera->PlantFault(fault);
        }
    } catch (const Simulation::StateError& error) {
        throw OpenError(error.what());
    } catch (const Simulation::FaultError& error) {
        throw UsageError(error.what());
    }
    return camera;
}

} // namespace

Session::Session(const Plugin& loaded, const std::string& name, const CameraOptions& options)
    : plugin(loaded),
      model(name),
      state(options.state),
      camera(SwitchOn(loaded, name, options)),
      port(*camera, options.accesses),
      control(OpenAgain(options.index)) {}

Session::~Session() = default;

void Session::SaveState() const {
    if (!state.empty()) {
        Simulation::SaveState(*camera, state);
    }
}

Control Session::OpenAgain(std::int32_t index) {
    try {
        if (Control opened = plugin.Create(model.c_str(), port, index)) {
            return opened;
        }
    } catch (const SDK4::X4Error& error) {
        throw OpenError("opening \"" + model + "\" failed: " + SDK4::ErrorName(error.code));
    } catch (const Simulation::PortError& error) {
        throw OpenError("opening \"" + model + "\" failed: " + error.what());
    }
    throw OpenError("the plug-in registers model \"" + model + "\" but does not create a control for it");
}

} // namespace Host
