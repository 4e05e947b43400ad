#include "IntentionalLeak.h"
#include "Log.h"
#include "M2VXCameraBaseCtrl.h"
#include "OrvikControlImpl/OrvikFeatureCtrl.h"
#include "RefusingPort.h"

#include <SDK4/IControlPort.h>
#include <SDK4/IDynamicObject.h>
#include <SDK4/IModelRegistry.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace SDK4 {

const log4cxx::LoggerPtr logger = log4cxx::Logger::getLogger("SDK4QDV12Control");

namespace {

using Factory = IDynamicObject* (*)(const char* model, IControlPort* port, std::int32_t index);

IDynamicObject* CreateOrvik(const char* model, IControlPort* port, std::int32_t index) {
    [[maybe_unused]] const IntentionalLeak
        listEntries; // see ReleaseStorage.h; and the media type, which a host may keep
    auto features = std::make_unique<CFeatureList>();
    auto registers = std::make_unique<CRegisterList>();
    if (port == nullptr) {
        port = RefusingPort::Instance();
    }
    auto* control = new Control::COrvikFeatureCtrl(features.get(), registers.get(), port, index, model, "Orvik");
    features.release(); // owned by the control from here on
    registers.release();
    return control;
}

IDynamicObject* CreateM2VX(const char* /*model*/, IControlPort* port, std::int32_t index) {
    return new Control::CM2VXBaseControl(port, index, "M2VX");
}

struct Model {
    const char* name;
    Factory create;
};

/// The models, in the order of registration.
// clang-format off
constexpr Model models[] = {
    {"Orvik-31200M", CreateOrvik},
    {"Orvik-31200C", CreateOrvik},
    {"Orvik-710M",   CreateOrvik},
    {"Orvik-710C",   CreateOrvik},
    {"Orvik-390M",   CreateOrvik},
    {"Orvik-390C",   CreateOrvik},
    {"Orvik-520M",   CreateOrvik},
    {"Orvik-520C",   CreateOrvik},
    {"Orvik-530M",   CreateOrvik},
    {"Orvik-530C",   CreateOrvik},
    {"Cerix7-MV",    CreateM2VX},
    {"Cerix-MV7",    CreateM2VX},
    {"Sollux G",     CreateM2VX},
};
// clang-format on

constexpr const char* libraryKey = "qdv12";

Factory FindFactory(std::string_view name) {
    for (const Model& model : models) {
        if (name == model.name) {
            return model.create;
        }
    }
    return nullptr;
}

} // namespace

} // namespace SDK4

/// Registers every model with the host's IModelRegistry. Does nothing for a null registry.
extern "C" SDK4_PUBLIC void InitLibrary(void* registry) {
    SDK4_LOG(Info, "Init QDV12Control");
    if (registry == nullptr) {
        return;
    }
    for (const SDK4::Model& model : SDK4::models) {
        static_cast<IModelRegistry*>(registry)->RegisterModel(model.name, SDK4::libraryKey);
    }
}

/// Creates the control of a camera on the host's IControlPort. Returns its IDynamicObject, which the host destroys with
/// Release, or null for an unknown model.
/// @param modelName not copied: the text must outlive the control
/// @param index camera index, which selects the caching
extern "C" SDK4_PUBLIC void* CreateObject(const char* modelName, void* port, std::int32_t index) {
    const std::string_view name = modelName == nullptr ? "" : modelName;
    SDK4_LOG(Info, "QDV12: CreateObject(" << name << ")");
    const SDK4::Factory create = SDK4::FindFactory(name);
    if (create == nullptr) {
        SDK4_LOG(Info, "Unknown (Flying) Object ");
        return nullptr;
    }
    return create(modelName, static_cast<SDK4::IControlPort*>(port), index);
}
