#include "Host/Commands/Commands.h"

#include "Common/Text.h"
#include "Host/Format.h"

namespace Host {

namespace {

Json ToJson(const PluginCheck& check) {
    Json exports(Json::Object{});
    for (const auto& [name, found] : check.exports) {
        exports.Add(name, found);
    }
    Json models(Json::List{});
    for (const Model& model : check.models) {
        models.Add(Json{{"name", model.name}, {"key", model.key}});
    }
    return Json{{"path", check.path},        {"loaded", check.loadError.empty()},
                {"loader", check.loadError}, {"exports", exports},
                {"models", models},          {"fault", check.Fault()}};
}

std::string Describe(const PluginCheck& check) {
    std::string text = "path    " + Common::InOneLine(check.path) + "\nloader  " +
                       (check.loadError.empty() ? "loaded" : Common::InOneLine(check.loadError));
    for (const auto& [name, found] : check.exports) {
        text += "\nexport  " + Pad(name, 14) + (found ? "found" : "missing");
    }
    for (const Model& model : check.models) {
        text += "\nmodel   " + Pad(model.name, 14) + model.key;
    }
    return text;
}

} // namespace

int Check(const Invocation& invocation) {
    const std::string path = invocation.Text(Parameter::Plugin);
    const PluginCheck check = CheckPlugin(path.empty() ? invocation.Program().Options().plugin : path);
    Output output = invocation.Output();
    output.Set(Describe(check), ToJson(check));
    output.End();
    if (const std::string fault = check.Fault(); !fault.empty()) {
        throw OpenError(fault);
    }
    return Success;
}

} // namespace Host
