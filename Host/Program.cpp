#include "Host/Program.h"

#include "Host/Channel/ChannelErrors.h"
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
        session.emplace(LoadedPlugin(), camera, options.camera);
        opened = camera;
    }
    return *session;
}

void Program::Close() { session.reset(); }

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
