#include "Host/Program.h"

#include "Host/CameraName.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/DeferredTermination.h"
#include "Host/Command.h"
#include "Host/Recording/ReplayConnection.h"

#include <utility>

namespace Host {

namespace {

constexpr const char* openAgain = "the camera is open again";

} // namespace

Program::Program(Host::Options given) : options(std::move(given)) {
    if (!options.record.file.empty()) {
        options.camera.recorder = &recorder.emplace(options.record);
    }
}

void Program::Note(const std::string& command) {
    if (recorder) {
        recorder->Note(command);
    }
}

bool Program::CheckRecordings() {
    const std::string rest = session ? session->Connection().DescribeRest() : "";
    if (!rest.empty()) {
        PrintError(rest);
    }
    return rest.empty() && !(recorder && recorder->HasFailed());
}

const Plugin& Program::LoadedPlugin() {
    if (!plugin) {
        plugin.emplace(options.plugin);
    }
    return *plugin;
}

Session& Program::Open(const std::string& camera) {
    finished = false;
    if (session && std::exchange(isReplayLost, false)) {
        session->Reopen();
        PrintError(openAgain);
    }
    if (!session) {
        const bool again = IsOpen();
        session.emplace(LoadedPlugin(), again ? opened : camera, options.camera);
        if (again) {
            PrintError(openAgain);
        } else {
            opened = camera;
        }
    }
    return *session;
}

void Program::CloseLost() {
    if (session && dynamic_cast<ReplayConnection*>(&session->Connection()) != nullptr) {
        isReplayLost = true; // the recording goes on
    } else {
        session.reset();
    }
}

void Program::StopAcquisition() {
    const DeferredTermination::Suspension untilStopped;
    if (session && !isReplayLost && session->Acquires()) {
        session->Acquire(false);
    }
}

void Program::Close() {
    session.reset();
    opened.clear();
}

bool Program::IsOpen(const std::string& camera) {
    if (!IsOpen() || camera == opened) {
        return IsOpen();
    }
    const std::string address = Open(opened).Address();
    const CameraName name = ParseCameraName(camera);
    return !address.empty() && name.IsOnNetwork() && FindAddress(name) == address;
}

void Program::ReportController() {
    if (const std::string denial = session ? session->Connection().TakeDenial() : ""; !denial.empty()) {
        PrintError(denial + "; values that need control were not read");
    }
}

void Program::SaveState() {
    if (session) {
        session->Connection().SaveState();
    }
}

void Program::Finish() {
    if (session && !std::exchange(finished, true)) {
        try {
            session->Connection().RequireUnbroken();
        } catch (ChannelLost& error) {
            error.SetFunction("at the end");
            throw;
        }
        SaveState();
    }
}

} // namespace Host
