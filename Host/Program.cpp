#include "Program.h"

namespace Host {

const Plugin& Program::LoadedPlugin() {
    if (!plugin) {
        plugin.emplace(options.plugin);
    }
    return *plugin;
}

Session& Program::Open(const std::string& model) {
    if (!session) {
        session.emplace(LoadedPlugin(), model, options.camera);
    }
    return *session;
}

void Program::Finish() {
    if (session) {
        session->Connection().RequireUnbroken();
        session->Connection().SaveState();
    }
}

} // namespace Host
