#include "Tests/Support/Plugin.h"

#include <dlfcn.h>

#include <stdexcept>

namespace Test {

namespace {

#ifdef QDV12_SANITIZED
constexpr int keepLoaded = RTLD_NODELETE;
#else
constexpr int keepLoaded = 0;
#endif

template <typename Function> void Resolve(Function& function, void* handle, const char* name) {
    function = reinterpret_cast<Function>(dlsym(handle, name));
    if (function == nullptr) {
        throw std::runtime_error(std::string(Plugin::Path()) + " exports no " + name);
    }
}

} // namespace

const char* Plugin::Path() { return QDV12_LIBRARY; }

Plugin::Plugin() : handle(dlopen(Path(), RTLD_NOW | RTLD_LOCAL | keepLoaded)) {
    if (handle == nullptr) {
        throw std::runtime_error(dlerror());
    }
    Resolve(initLibrary, handle, "InitLibrary");
    Resolve(createObject, handle, "CreateObject");
}

Plugin::~Plugin() { dlclose(handle); }

} // namespace Test
