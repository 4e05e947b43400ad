#include "Session.h"

#include <Cameras.h>

#include <algorithm>

namespace Host {

namespace {

std::unique_ptr<Simulation::SimulatedCamera> SwitchOn(const Plugin& plugin, const std::string& model) {
    const auto& models = plugin.Models();
    if (std::none_of(models.begin(), models.end(), [&](const Model& served) { return served.name == model; })) {
        throw OpenError("unknown model \"" + model + "\": the command \"models\" lists those that the plug-in serves");
    }
    auto camera = Simulation::MakeCamera(model);
    if (!camera) {
        throw OpenError("no simulated camera of model \"" + model + "\"");
    }
    return camera;
}

} // namespace

Session::Session(const Plugin& loaded, const std::string& name, std::int32_t index)
    : plugin(loaded),
      model(name),
      camera(SwitchOn(loaded, name)),
      port(*camera),
      control(OpenAgain(index)) {}

Control Session::OpenAgain(std::int32_t index) {
    try {
        if (Control opened = plugin.Create(model.c_str(), port, index)) {
            return opened;
        }
    } catch (const SDK4::X4Error& error) {
        throw OpenError("opening \"" + model + "\" failed: " + SDK4::ErrorName(error.code));
    }
    throw OpenError("the plug-in registers model \"" + model + "\" but does not create a control for it");
}

} // namespace Host
