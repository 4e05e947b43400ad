#include "Host/Plugin.h"

#include <SDK4/IModelRegistry.h>

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>

namespace Host {

namespace {

// The leak checker resolves symbols when the program ends, so the plug-in must stay loaded.
#if defined(__SANITIZE_ADDRESS__)
constexpr int stayLoaded = RTLD_NODELETE;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr int stayLoaded = RTLD_NODELETE;
#else
constexpr int stayLoaded = 0;
#endif
#else
constexpr int stayLoaded = 0;
#endif

class Registry final : public IModelRegistry {
public:
    explicit Registry(std::vector<Model>& target) : models(target) {}
    void RegisterModel(const char* modelName, const char* libraryKey) override {
        models.push_back({modelName, libraryKey});
    }

private:
    std::vector<Model>& models;
};

} // namespace

std::string PluginCheck::Fault() const {
    if (!loadError.empty()) {
        return "cannot load " + path + ": " + loadError + (hint.empty() ? "" : "; " + hint);
    }
    for (const auto& [name, found] : exports) {
        if (!found) {
            return path + " is not a camera plug-in: it does not export " + name;
        }
    }
    return models.empty() ? path + " registers no models" : "";
}

PluginCheck CheckPlugin(const std::string& path) {
    Plugin plugin;
    plugin.Load(path);
    return plugin.check;
}

Plugin::Plugin(const std::string& path) {
    Load(path);
    if (const std::string fault = check.Fault(); !fault.empty()) {
        throw OpenError(fault);
    }
}

void Plugin::Load(const std::string& path) {
    // A bare name that is a file here means that file, not one on the loader's search path.
    check.path = std::filesystem::exists(path) ? std::filesystem::absolute(path).string() : path;
    library.reset(dlopen(check.path.c_str(), RTLD_NOW | RTLD_LOCAL | stayLoaded));
    if (!library) {
        check.loadError = dlerror();
        if (const std::string prefix = check.path + ": ";
            check.loadError.starts_with(prefix)) { // the path is printed separately
            check.loadError.erase(0, prefix.size());
        }
        if (check.loadError.find("undefined symbol") != std::string::npos &&
            check.loadError.find("log4cxx") != std::string::npos) {
            check.hint = "link the program with the shared log4cxx that the plug-in was built with "
                         "(-Wl,--no-as-needed -llog4cxx)";
        }
        return;
    }
    const auto find = [&](const char* name) {
        void* const symbol = dlsym(library.get(), name);
        check.exports.emplace_back(name, symbol != nullptr);
        return symbol;
    };
    auto* const init = reinterpret_cast<InitLibrary*>(find("InitLibrary"));
    create = reinterpret_cast<CreateObject*>(find("CreateObject"));
    if (init != nullptr) {
        Registry registry(check.models);
        init(static_cast<IModelRegistry*>(&registry));
    }
}

std::vector<std::string> Plugin::ModelNames() const {
    std::vector<std::string> names;
    for (const Model& model : check.models) {
        names.push_back(model.name);
    }
    return names;
}

bool Plugin::Serves(const std::string& model) const {
    return std::any_of(check.models.begin(), check.models.end(), [&](const Model& each) { return each.name == model; });
}

void Plugin::CloseLibrary::operator()(void* handle) const { dlclose(handle); }

Control Plugin::Create(const char* model, SDK4::IControlPort& port, std::int32_t index) const {
    return Control(static_cast<IDynamicObject*>(create(model, &port, index)));
}

std::string DefaultPlugin() {
    const std::filesystem::path name = "libqdv12ctrl.so";
    std::error_code ignored; // on failure, the loader searches for the bare name
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
    const auto installed = folder.parent_path() / "lib" / "qdv12" / name;
    return (std::filesystem::exists(installed, ignored) ? installed : folder / name).string();
}

} // namespace Host
