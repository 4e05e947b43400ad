#include "Host/Program.h"

#include "Host/CameraName.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/DeferredTermination.h"
#include "Host/Command.h"

#include <utility>

namespace Host {

const Plugin& Program::LoadedPlugin() {
    if (!plugin) {
        plugin.emplace(options.plugin);
    }
    return *plugin;
}

Session& Program::Open(const std::string& camera) {
    finished = false;
    if (!session) {
        const bool again = IsOpen();
        session.emplace(LoadedPlugin(), again ? opened : camera, options.camera);
        if (again) {
            PrintError("the camera is open again");
        } else {
            opened = camera;
        }
    }
    return *session;
}

void Program::StopAcquisition() {
    const DeferredTermination::Suspension untilStopped;
    if (session && session->Acquires()) {
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
    return !address.empty() && name.by != CameraName::By::Model && FindAddress(name) == address;
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
