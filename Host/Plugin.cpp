#include "Plugin.h"

#include <dlfcn.h>

namespace Host {

namespace {

// A leak checker names what it found when the program ends: the plug-in has to be still there.
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

[[noreturn]] void Refuse(const std::string& path, const std::string& reason) {
    throw OpenError("cannot load the plug-in\n  path:   " + path + "\n" + reason);
}

} // namespace

Plugin::Plugin(const std::filesystem::path& path) {
    // A bare name that is a file here means that file, not one on the loader's search path.
    const std::string file = std::filesystem::exists(path) ? std::filesystem::absolute(path).string() : path.string();
    library.reset(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | stayLoaded));
    if (!library) {
        Refuse(file, std::string("  loader: ") + dlerror());
    }

    std::string missing;
    const auto find = [&](const char* name) {
        void* const symbol = dlsym(library.get(), name);
        if (symbol == nullptr) {
            missing += std::string("\n  missing export: ") + name;
        }
        return symbol;
    };
    auto* const init = reinterpret_cast<InitLibrary*>(find("InitLibrary"));
    create = reinterpret_cast<CreateObject*>(find("CreateObject"));
    if (!missing.empty()) {
        Refuse(file, "  it is a shared library, but no camera plug-in" + missing);
    }

    Registry registry(models);
    init(static_cast<IModelRegistry*>(&registry));
}

void Plugin::CloseLibrary::operator()(void* handle) const { dlclose(handle); }

Control Plugin::Create(const char* model, SDK4::IControlPort& port, std::int32_t index) const {
    return Control(static_cast<IDynamicObject*>(create(model, &port, index)));
}

std::filesystem::path PluginBesideProgram() {
    std::error_code ignored; // without it the name alone remains, for the loader to find
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path() / "libqdv12ctrl.so";
}

} // namespace Host
