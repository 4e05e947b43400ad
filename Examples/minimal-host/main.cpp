// The smallest host: loads the plug-in, opens a camera on a port, sets an exposure time. The port prints what is
// written.

#include "BytePort.h"

#include <SDK4/SDK4.h>

#include <dlfcn.h>
#include <log4cxx/logger.h>

int main() {
    // The host provides log4cxx and sets the log level.
    log4cxx::Logger::getRootLogger()->setLevel(log4cxx::Level::getOff());
    void* const library = dlopen(QDV12_PLUGIN, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    using CreateObject = void*(const char* model, void* port, std::int32_t index);
    auto* const create = reinterpret_cast<CreateObject*>(dlsym(library, "CreateObject"));

    BytePort port;
    auto* const camera = static_cast<IDynamicObject*>(create("Orvik-710M", &port, 2));
    if (camera == nullptr) {
        std::fprintf(stderr, "the plug-in does not serve this model\n");
        return 1;
    }
    if (auto* const exposure = dynamic_cast<SDK4::Control::IExposure*>(camera)) {
        std::printf("SetExposure(base 1, counter 2000)\n");
        exposure->SetExposure({1, 2000});
        std::printf("GetExposure() = counter %u\n", static_cast<unsigned>(exposure->GetExposure().counter));
    }
    camera->Release(); // the only way to destroy it; before dlclose
    dlclose(library);
    return 0;
}
