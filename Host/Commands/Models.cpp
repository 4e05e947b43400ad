#include "Host/Commands/Commands.h"

#include "Host/Format.h"
#include "Host/Json.h"

#include <SDK4/IControl.h>

#include <iostream>

namespace Host {

namespace {

/// The design of the control that serves a model; only an opened control says it.
std::string FamilyOf(const Plugin& plugin, const std::string& model) {
    try {
        const Session session(plugin, model, {.index = 2, .accesses = [](const Access&) {}});
        auto* const control = session.As<SDK4::IControl>();
        return control == nullptr ? "" : control->GetClassID();
    } catch (const OpenError&) { // the model is registered all the same
        return "unknown";
    }
}

} // namespace

int Models(const Invocation& invocation) {
    const Plugin& plugin = invocation.Program().LoadedPlugin();
    Json list(Json::List{});
    for (const Model& model : plugin.Models()) {
        const std::string family = FamilyOf(plugin, model.name);
        if (invocation.Program().Json()) {
            list.Add(Json{{"name", model.name}, {"key", model.key}, {"family", family}});
        } else {
            std::cout << Pad(model.name, 16) << Pad(model.key, 8) << family << '\n';
        }
    }
    if (invocation.Program().Json()) {
        std::cout << list.Print() << '\n';
    }
    return Success;
}

} // namespace Host
