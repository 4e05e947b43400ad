#include "Host/Session.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/GigEConnection.h"
#include "Host/Text.h"
#include "Simulation/Suggestion.h"

#include <algorithm>

namespace Host {

namespace {

constexpr const char* opening = "opening the camera"; ///< stands for the name of a function

std::vector<std::string> NamesOf(const std::vector<Model>& models) {
    std::vector<std::string> names;
    names.reserve(models.size());
    for (const Model& model : models) {
        names.push_back(model.name);
    }
    return names;
}

bool Serves(const Plugin& plugin, const std::string& model) {
    const auto known = NamesOf(plugin.Models());
    return std::find(known.begin(), known.end(), model) != known.end();
}

void RequireServed(const Plugin& plugin, const std::string& model) {
    if (!Serves(plugin, model)) {
        throw OpenError("unknown model \"" + model + '"' + Simulation::Suggestion(model, NamesOf(plugin.Models())));
    }
}

/// What a camera on the network is to be opened as. @param wanted may be empty
std::string ModelOf(const Plugin& plugin, NetworkConnection& connection, const std::string& wanted) {
    std::string read;
    try {
        read = connection.ModelName();
    } catch (const ChannelError& error) {
        throw OpenError("the model of " + connection.Describe() + " could not be read: " + error.what());
    }
    const bool mismatch = !wanted.empty() && wanted != read;
    if (!mismatch && Serves(plugin, read)) {
        return read;
    }
    std::string served;
    for (const std::string& name : NamesOf(plugin.Models())) {
        served += (served.empty() ? "" : ", ") + name;
    }
    throw OpenError(connection.Describe() + " calls itself \"" + Escaped(read) + '"' +
                    (mismatch ? ", not \"" + wanted + '"' : "") + "; the plug-in serves " + served +
                    " (--force-model opens it as one of these)");
}

} // namespace

Session::Reached Session::Reach(const Plugin& plugin, const std::string& model, const CameraOptions& options) {
    if (options.address.empty() || options.forceModel) {
        RequireServed(plugin, model);
    }
    if (options.address.empty()) {
        return {std::make_unique<SimulatedConnection>(model, options.simulation), model};
    }
    auto connection = ConnectGigE(options.address);
    const std::string opened = options.forceModel ? model : ModelOf(plugin, *connection, model);
    return {std::move(connection), opened};
}

Session::Session(const Plugin& loaded, const std::string& name, const CameraOptions& options)
    : Session(loaded, Reach(loaded, name, options), options) {}

Session::Session(const Plugin& loaded, Reached reached, const CameraOptions& options)
    : plugin(loaded),
      model(std::move(reached.model)),
      connection(std::move(reached.connection)),
      port(connection->Port(), options.accesses),
      control(OpenAgain(options.index)) {}

Control Session::OpenAgain(std::int32_t index) {
    try {
        if (Control opened = plugin.Create(model.c_str(), port, index)) {
            return opened;
        }
    } catch (const SDK4::X4Error& error) {
        throw OpenError("opening \"" + model + "\" failed: " + SDK4::ErrorName(error.code));
    } catch (ChannelLost& error) {
        error.SetFunction(opening);
        throw;
    } catch (const std::runtime_error& error) { // of the port, whatever is behind it
        throw OpenError("opening \"" + model + "\" failed: " + error.what());
    }
    throw OpenError("the plug-in registers model \"" + model + "\" but does not create a control for it");
}

} // namespace Host
