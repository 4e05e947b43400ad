#include "Host/Commands/Commands.h"

#include "Host/Format.h"
#include "Host/Json.h"
#include "Host/Text.h"

#include <iostream>

namespace Host {

namespace {

void PrintAsJson(const PluginCheck& check) {
    Json exports(Json::Object{});
    for (const auto& [name, found] : check.exports) {
        exports.Add(name, found);
    }
    Json models(Json::List{});
    for (const Model& model : check.models) {
        models.Add(Json{{"name", model.name}, {"key", model.key}});
    }
    std::cout << Json{{"path", check.path},     {"loaded", check.loader.empty()},
                      {"loader", check.loader}, {"exports", exports},
                      {"models", models},       {"fault", check.Fault()}}
                     .Print()
              << '\n';
}

void Print(const PluginCheck& check) {
    std::cout << "path    " << InOneLine(check.path) << '\n'
              << "loader  " << (check.loader.empty() ? "loaded" : InOneLine(check.loader)) << '\n';
    for (const auto& [name, found] : check.exports) {
        std::cout << "export  " << Pad(name, 14) << (found ? "found" : "missing") << '\n';
    }
    for (const Model& model : check.models) {
        std::cout << "model   " << Pad(model.name, 14) << model.key << '\n';
    }
}

} // namespace

int Check(const Invocation& invocation) {
    const std::string path = invocation.Text(Parameter::Plugin);
    const PluginCheck check = CheckPlugin(path.empty() ? invocation.Program().Options().plugin : path);
    invocation.Program().Json() ? PrintAsJson(check) : Print(check);
    if (const std::string fault = check.Fault(); !fault.empty()) {
        throw OpenError(fault);
    }
    return Success;
}

} // namespace Host
