// A host that gets the error cases right. The code of an X4Error tells what the camera holds after a refusal, and so
// what to do next: clamped (ask what it became), locked (release the lock), not available (change the mode), not
// implemented (do without).

#include "BytePort.h"

#include <SDK4/SDK4.h>

#include <dlfcn.h>
#include <log4cxx/logger.h>

#include <exception>
#include <memory>
#include <stdexcept>

namespace {

using namespace SDK4::Control;

void SetGain(IGain& gain, unsigned int value) {
    std::printf("SetGain(%u)\n", value);
    try {
        gain.SetGain(value);
        std::printf("  set\n");
    } catch (const SDK4::X4Error& error) {
        if (error.code == SDK4_ERR_OUTOFRANGE) { // the nearest admitted value was written: ask for it
            std::printf("  clamped to %u\n", gain.GetGain());
        } else if (error.code == SDK4_ERR_CANTSETFEATURE) { // nothing was written: automatic gain owns the value
            std::printf("  locked; switching automatic gain off\n");
            gain.SetAGC(SDK4_AGC_OFF);
            SetGain(gain, value);
        } else {
            throw;
        }
    }
}

void SetTriggerDelay(ITrigger& trigger, IExposure& exposure, SDK4_KEXPOSURE delay) {
    std::printf("SetTriggerDelay(base %u, counter %u)\n", static_cast<unsigned>(delay.base),
                static_cast<unsigned>(delay.counter));
    try {
        trigger.SetTriggerDelay(delay);
        std::printf("  set\n");
    } catch (const SDK4::X4Error& error) {
        if (error.code != SDK4_ERR_DISABLED)
            throw;
        std::printf("  not available in this exposure mode; changing it\n"); // nothing was written
        exposure.SetExposureMode(SDK4_EXPOSUREMODE_RESETRESTART);
        SetTriggerDelay(trigger, exposure, delay);
    }
}

void SetSlowScan(ISlowScan& slowScan) {
    std::printf("SetSlowScan(on)\n");
    try {
        slowScan.SetSlowScan(SDK4_SWITCH_ON);
    } catch (const SDK4::X4Error& error) {
        if (error.code != SDK4_ERR_NOT_IMPLEMENTED)
            throw;
        std::printf("  this camera does not have it\n");
    }
}

/// Interfaces that the camera's family lacks end in std::bad_cast.
void Drive(IDynamicObject& camera) {
    auto& gain = dynamic_cast<IGain&>(camera);
    SetGain(gain, 600);
    gain.SetAGC(1);
    SetGain(gain, 100);
    SetTriggerDelay(dynamic_cast<ITrigger&>(camera), dynamic_cast<IExposure&>(camera), {1, 250});
    SetSlowScan(dynamic_cast<ISlowScan&>(camera));
}

struct Release {
    void operator()(IDynamicObject* camera) const { camera->Release(); }
};
struct Close {
    void operator()(void* library) const { dlclose(library); }
};

void Run() {
    const std::unique_ptr<void, Close> library(dlopen(QDV12_PLUGIN, RTLD_NOW | RTLD_LOCAL));
    if (!library)
        throw std::runtime_error(dlerror());
    using CreateObject = void*(const char* model, void* port, std::int32_t index);
    auto* const create = reinterpret_cast<CreateObject*>(dlsym(library.get(), "CreateObject"));

    BytePort port; // must outlive the camera, which must go before the library does
    const std::unique_ptr<IDynamicObject, Release> camera(static_cast<IDynamicObject*>(create("Orvik-710M", &port, 0)));
    if (!camera)
        throw std::runtime_error("the plug-in does not serve this model");
    Drive(*camera);
}

} // namespace

int main() {
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
