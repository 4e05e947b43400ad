// First steps with either family of cameras: how calls are refused, what a host does then, and what calls cost. The
// code of an X4Error tells what to do next: clamped (ask what the camera holds), locked (release the lock), not
// available (change the mode), not implemented (do without). The port is that of minimal-host: it prints what is
// written to the camera, and counts the accesses.

#include "BytePort.h"

#include <SDK4/SDK4.h>

#include <dlfcn.h>
#include <log4cxx/logger.h>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using namespace SDK4::Control;

using CreateObject = void*(const char* model, void* port, std::int32_t index);
struct Release {
    void operator()(IDynamicObject* camera) const { camera->Release(); }
};
using Camera = std::unique_ptr<IDynamicObject, Release>;

Camera Open(CreateObject* create, const char* model, BytePort& port, std::int32_t index) {
    Camera camera(static_cast<IDynamicObject*>(create(model, &port, index)));
    if (!camera) {
        throw std::runtime_error("the plug-in does not serve this model");
    }
    std::printf("%s, opened with index %d (port accesses: %u)\n", model, static_cast<int>(index), port.accesses);
    return camera;
}

/// Prints a call and makes it.
template <typename Call> void Do(const char* text, const Call& call) {
    std::printf("%s\n", text);
    call();
}

/// The same for a call that may be refused with that code: tells whether it was. Any other refusal ends the program.
template <typename Call> bool Refused(std::int32_t code, const char* text, const Call& call) {
    try {
        Do(text, call);
        return false;
    } catch (const SDK4::X4Error& error) {
        if (error.code != code) {
            throw;
        }
        std::printf("  %s: ", SDK4::ErrorName(code));
        return true;
    }
}

/// Prints a value and how many port accesses it cost to get it.
template <typename Get> void Show(const char* text, const BytePort& port, const Get& get) {
    const unsigned int before = port.accesses;
    const unsigned int value = get();
    std::printf("%s = %u (port accesses: %u)\n", text, value, port.accesses - before);
}

// An interface that the camera's family lacks ends in std::bad_cast.

void RefuseAndRecover(IDynamicObject& camera) {
    auto& gain = dynamic_cast<IGain&>(camera);
    if (Refused(SDK4_ERR_OUTOFRANGE, "SetGain(600)", [&] { gain.SetGain(600); })) {
        std::printf("clamped to %u\n", gain.GetGain());
    }
    Do("SetAGC(1)", [&] { gain.SetAGC(1); });
    if (Refused(SDK4_ERR_CANTSETFEATURE, "SetGain(100)", [&] { gain.SetGain(100); })) {
        std::printf("locked by automatic gain; switching it off\n");
        gain.SetAGC(SDK4_AGC_OFF);
        gain.SetGain(100);
    }

    auto& trigger = dynamic_cast<ITrigger&>(camera);
    const auto setDelay = [&] { trigger.SetTriggerDelay({1, 250}); };
    if (Refused(SDK4_ERR_DISABLED, "SetTriggerDelay(base 1, counter 250)", setDelay)) {
        std::printf("not available in this exposure mode; changing it\n");
        dynamic_cast<IExposure&>(camera).SetExposureMode(SDK4_EXPOSUREMODE_RESETRESTART);
        setDelay();
    }

    auto& slowScan = dynamic_cast<ISlowScan&>(camera);
    if (Refused(SDK4_ERR_NOT_IMPLEMENTED, "SetSlowScan(on)", [&] { slowScan.SetSlowScan(SDK4_SWITCH_ON); })) {
        std::printf("this camera does not have it\n");
    }
}

void CacheAndLoad(IDynamicObject& camera, const BytePort& port) {
    auto& enhancement = dynamic_cast<IDigitalEnhancement&>(camera);
    const auto getSharpness = [&] { return enhancement.GetSharpness(); };
    Show("GetSharpness()", port, getSharpness);
    Show("GetSharpness()", port, getSharpness);
    // The camera replaces its settings, so the control discards its cached values and reads them when needed.
    Do("LoadSettings(1)", [&] { dynamic_cast<IBasicSettings&>(camera).LoadSettings(1); });
    Show("GetSharpness()", port, getSharpness);
}

/// Called in the middle of the call that changes a property; the context is the host's own.
void PrintChange(const char* name, const char* attribute, void* context) {
    auto& properties = *static_cast<IPropertyState*>(context);
    if (std::string(attribute) == "enabled") {
        std::printf("  callback: %s is now %s\n", name, properties.GetEnabled(name) ? "enabled" : "disabled");
    } else {
        std::printf("  callback: %s = %u\n", name, static_cast<unsigned>(properties.GetUIntValue(name)));
    }
}

void FollowProperties(IDynamicObject& camera, const BytePort& port) {
    auto& properties = dynamic_cast<IPropertyState&>(camera);
    auto& gain = dynamic_cast<M2VX::IGain&>(camera);
    properties.AddCallback(PrintChange, &properties);
    Do("SetGain(300)", [&] { gain.SetGain(300); });
    Show("GetGain()", port, [&] { return gain.GetGain(); });
    Do("SetAGC(1)", [&] { gain.SetAGC(1); }); // a mode enables and disables what depends on it
    if (Refused(SDK4_ERR_DISABLED, "SetGain(100)", [&] { gain.SetGain(100); })) {
        std::printf("automatic gain owns the value\n");
    }
    properties.RemoveCallback(PrintChange);
}

struct Close {
    void operator()(void* library) const { dlclose(library); }
};

void Run() {
    const std::unique_ptr<void, Close> library(dlopen(QDV12_PLUGIN, RTLD_NOW | RTLD_LOCAL));
    if (!library) {
        throw std::runtime_error(dlerror());
    }
    auto* const create = reinterpret_cast<CreateObject*>(dlsym(library.get(), "CreateObject"));

    // The library and the port must outlive the camera.
    BytePort orvikPort;
    const Camera orvik = Open(create, "Orvik-710M", orvikPort, 0); // index 0: cached in this family
    RefuseAndRecover(*orvik);
    CacheAndLoad(*orvik, orvikPort);

    BytePort m2vxPort;
    const Camera m2vx = Open(create, "Cerix-MV7", m2vxPort, 0); // index 0: uncached in this family
    FollowProperties(*m2vx, m2vxPort);
}

} // namespace

int main() {
    // The plug-in takes log4cxx from its host, which decides what is logged.
    log4cxx::Logger::getRootLogger()->setLevel(log4cxx::Level::getOff());
    try {
        Run();
        return 0;
    } catch (const SDK4::X4Error& error) { // leaves Run only for a reason that was not foreseen
        std::fprintf(stderr, "refused: %s\n", SDK4::ErrorName(error.code));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
