#include "Host/Session.h"

#include "Common/Suggestion.h"
#include "Common/Text.h"
#include "Host/CameraName.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/GigEConnection.h"
#include "Host/CurrentCall.h"
#include "Host/Recording/ReplayConnection.h"

#include <SDK4/IStreamControl.h>

#include <filesystem>
#include <system_error>

#include <SDK4/IStreamControl.h>

namespace Host {

namespace {

constexpr const char* opening = "opening the camera"; ///< in place of a function name

void RequireServed(const Plugin& plugin, const std::string& model) {
    if (!plugin.Serves(model)) {
        throw OpenError("unknown model \"" + model + '"' + Common::Suggestion(model, plugin.ModelNames()));
    }
}

/// Everyone who looks at accesses. Without any, the port records them.
TracingPort::Observer ObserverOf(const CameraOptions& options) {
    if (options.recorder == nullptr) {
        return options.accesses;
    }
    return [recorder = options.recorder, other = options.accesses](const Access& access) {
        recorder->Write(access);
        if (other) {
            other(access);
        }
    };
}

/// The model that a camera on the network reports, if the plug-in serves it.
std::string ModelOf(const Plugin& plugin, NetworkConnection& connection) {
    std::string read;
    try {
        read = connection.ModelName();
    } catch (const ChannelError& error) {
        throw CameraUnavailable("the model of " + connection.Describe() + " could not be read: " + error.what());
    }
    if (plugin.Serves(read)) {
        return read;
    }
    throw OpenError(connection.Describe() + " reports the unknown model \"" + Common::Escaped(read) +
                    "\"; use --force-model with one of " + Common::Join(plugin.ModelNames()));
}

/// An option that applies to some cameras only.
struct OptionRule {
    const char* refusal;
    bool (*fits)(const CameraName& name);
    bool (*isGiven)(const CameraOptions& options);
    void (*drop)(CameraOptions& options);
};

bool IsSimulatedName(const CameraName& name) { return name.by == CameraName::By::Model; }

constexpr OptionRule optionRules[] = {
    {"--loose applies to recorded cameras only",
     [](const CameraName& name) { return name.by == CameraName::By::Recording; },
     [](const CameraOptions& options) { return options.loose; }, [](CameraOptions& options) { options.loose = false; }},
    {"--force-model applies to cameras on the network only", [](const CameraName& name) { return name.IsOnNetwork(); },
     [](const CameraOptions& options) { return !options.forcedModel.empty(); },
     [](CameraOptions& options) { options.forcedModel.clear(); }},
    {"--no-control applies to cameras on the network only",
     [](const CameraName& name) { return !IsSimulatedName(name); },
     [](const CameraOptions& options) { return options.readOnly; },
     [](CameraOptions& options) { options.readOnly = false; }},
    {"--seed, --state and --fault apply to simulated cameras only", IsSimulatedName,
     [](const CameraOptions& options) {
         const SimulationOptions& simulation = options.simulation;
         return simulation.seed || !simulation.state.empty() || !simulation.faults.empty();
     },
     [](CameraOptions& options) { options.simulation = {}; }},
};

void RequireFitting(const CameraOptions& options, const CameraName& name) {
    for (const OptionRule& rule : optionRules) {
        if (rule.isGiven(options) && !rule.fits(name)) {
            throw UsageError(rule.refusal);
        }
    }
}

} // namespace

CameraOptions OptionsBeside(const std::string& other, const std::string& camera, CameraOptions options) {
    const CameraName name = ParseCameraName(camera);
    for (const OptionRule& rule : optionRules) {
        if (!rule.fits(name) && (other.empty() || rule.fits(ParseCameraName(other)))) {
            rule.drop(options);
        }
    }
    return options;
}

Session::Connected Session::Connect(const Plugin& plugin, const std::string& camera, const CameraOptions& options) {
    const CameraName name = ParseCameraName(camera);
    const bool isSimulated = IsSimulatedName(name);
    RequireFitting(options, name);
    if (name.by == CameraName::By::Recording) {
        Connected replayed = Replay(name.text, options);
        RequireServed(plugin, replayed.model);
        return replayed;
    }
    const std::string& model = isSimulated ? camera : options.forcedModel;
    if (!model.empty() || isSimulated) {
        RequireServed(plugin, model);
    }
    if (isSimulated) {
        return {std::make_unique<SimulatedConnection>(model, options.simulation), model, ""};
    }
    const std::string address = FindAddress(name);
    auto connection = options.readOnly ? ConnectReadOnly(address) : ConnectGigE(address);
    const std::string opened = model.empty() ? ModelOf(plugin, *connection) : model;
    return {std::move(connection), opened, address};
}

Session::Connected Session::Replay(const std::string& file, const CameraOptions& options) {
    std::error_code ignored;
    if (options.recorder != nullptr && std::filesystem::equivalent(file, options.recorder->File(), ignored)) {
        throw UsageError("--record would replace the recording that is replayed");
    }
    auto connection = std::make_unique<ReplayConnection>(file, options.loose);
    const std::string model = connection->Source().model;
    const std::int32_t index = connection->Source().index;
    if (options.index.value_or(index) != index) {
        throw UsageError("the camera was recorded with --index " + std::to_string(index));
    }
    return {std::move(connection), model, "", index};
}

Session::Session(const Plugin& loaded, const std::string& camera, const CameraOptions& options)
    : Session(loaded, Connect(loaded, camera, options), options) {}

Session::Session(const Plugin& loaded, Connected connected, const CameraOptions& options)
    : plugin(loaded),
      model(std::move(connected.model)),
      address(std::move(connected.address)),
      connection(std::move(connected.connection)),
      port(connection->Port(), ObserverOf(options)),
      index(options.index.value_or(connected.index)) {
    if (options.recorder != nullptr) {
        options.recorder->Begin(model, index);
    }
    control = CreateControl(index);
}

void Session::Acquire(bool on) {
    auto* const stream = As<SDK4::IStreamControl>();
    if (stream == nullptr) {
        throw std::runtime_error("the control of " + model + " delivers no pictures");
    }
    const CurrentCall call(on ? "start acquisition" : "stop acquisition");
    on ? stream->Start() : stream->Stop();
    acquires = on; // as the control, which keeps its state if the call fails
}

Control Session::CreateControl(std::int32_t cameraIndex) {
    const CurrentCall call("open");
    try {
        if (Control opened = plugin.Create(model.c_str(), port, cameraIndex)) {
            return opened;
        }
    } catch (const SDK4::X4Error& error) {
        throw OpenError("opening \"" + model + "\" failed: " + SDK4::ErrorName(error.code));
    } catch (ChannelLost& error) {
        error.SetFunction(opening);
        throw;
    } catch (const std::runtime_error& error) { // of any port
        throw OpenError("opening \"" + model + "\" failed: " + error.what());
    }
    throw OpenError("the plug-in registers model \"" + model + "\" but does not create a control for it");
}

void Session::Reopen() {
    control.reset();
    acquires = false;
    control = CreateControl(index);
}

} // namespace Host
