#include "Host/Commands/Commands.h"

#include "Host/Format.h"

#include <SDK4/IControl.h>

namespace Host {

namespace {

/// The family of a model, which only an opened control reports.
std::string FamilyOf(const Plugin& plugin, const std::string& model) {
    try {
        const Session session(plugin, model, {.index = 2, .accesses = [](const Access&) {}});
        auto* const control = session.As<SDK4::IControl>();
        return control == nullptr ? "" : control->GetClassID();
    } catch (const OpenError&) { // the model is listed anyway
        return "unknown";
    }
}

} // namespace

int Models(const Invocation& invocation) {
    const Plugin& plugin = invocation.Program().LoadedPlugin();
    Output output = invocation.Output();
    for (const Model& model : plugin.Models()) {
        const std::string family = FamilyOf(plugin, model.name);
        output.Add(Pad(model.name, 16) + Pad(model.key, 8) + family,
                   Json{{"name", model.name}, {"key", model.key}, {"family", family}});
    }
    output.End();
    return Success;
}

} // namespace Host
