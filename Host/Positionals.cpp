#include "Host/Positionals.h"

#include "Host/Errors.h"
#include "Host/Functions/Tables.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace Host {

namespace {

bool IsOptional(const Parameter& parameter) { return *parameter.name == '['; }

bool TakesSeveral(const Parameter& parameter) {
    return std::string_view(parameter.name).find("...") != std::string_view::npos;
}

bool LooksLikeModel(const std::string& text) {
    const auto isTelling = [](char character) { return character == ' ' || (character >= 'A' && character <= 'Z'); };
    return text.find('=') == std::string::npos && std::any_of(text.begin(), text.end(), isTelling);
}

bool IsModel(const Parameter& parameter) { return parameter.name == std::string_view(modelParameter); }

/// Whether there are no more texts than the parameters behind MODEL need.
bool LeavesNoneToModel(const std::vector<std::string>& texts, const std::vector<Parameter>& parameters) {
    const Parameter& last = parameters.back();
    return texts.empty() || (texts.size() == 1 && !IsModel(last) && !IsOptional(last));
}

/// Whether MODEL was left out, as it may be.
bool IsModelLeftOut(const std::vector<std::string>& texts, const std::vector<Parameter>& parameters) {
    return LeavesNoneToModel(texts, parameters) || (TakesSeveral(parameters.back()) && !LooksLikeModel(texts.front()));
}

/// Whether MODEL, which has to be there, was forgotten. One that is only misspelt was not.
bool IsModelMissing(const std::vector<std::string>& texts, const std::vector<Parameter>& parameters) {
    return texts.empty() || texts.front().find('=') != std::string::npos || IsFunction(texts.front()) ||
           (LeavesNoneToModel(texts, parameters) && !LooksLikeModel(texts.front()));
}

std::string UsageOf(const Command& command, CameraFrom camera, const std::vector<Parameter>& parameters) {
    std::string usage = "; usage: ";
    usage += camera == CameraFrom::Shell ? "" : "qdv12host ";
    usage += command.name;
    for (const Parameter& parameter : parameters) {
        const bool mayBeLeftOut = IsModel(parameter) && camera == CameraFrom::Network;
        usage += ' ' + (mayBeLeftOut ? '[' + std::string(parameter.name) + ']' : parameter.name);
    }
    return usage;
}

/// Gives the texts to the parameters in order.
void Distribute(const std::vector<std::string>& texts, const std::vector<Parameter>& parameters,
                const std::string& usage, Invocation::Given& given) {
    auto text = texts.begin();
    for (const Parameter& parameter : parameters) {
        if (text != texts.end()) {
            const auto end = TakesSeveral(parameter) ? texts.end() : text + 1;
            given[parameter.name].assign(text, end);
            text = end;
        } else if (!IsOptional(parameter)) {
            throw UsageError(BareName(parameter) + " is required" + usage);
        }
    }
    if (text != texts.end()) {
        throw UsageError('"' + *text + "\" was not expected");
    }
}

} // namespace

bool IsPositional(const Parameter& parameter) { return !std::string_view(parameter.name).starts_with("--"); }

std::string BareName(const Parameter& parameter) {
    std::string name = parameter.name;
    std::erase_if(name,
                  [](char character) { return std::string_view("[].").find(character) != std::string_view::npos; });
    return name;
}

void AssignPositionals(const Command& command, CameraFrom camera, Invocation::Given& given) {
    std::vector<Parameter> parameters;
    std::vector<std::string> texts;
    for (const Parameter& parameter : command.parameters) {
        if (IsPositional(parameter) && (camera != CameraFrom::Shell || !IsModel(parameter))) {
            parameters.push_back(parameter);
            const auto& some = given[parameter.name];
            texts.insert(texts.end(), some.begin(), some.end());
            given.erase(parameter.name);
        }
    }
    const std::string usage = UsageOf(command, camera, parameters);
    const bool takesModel = !parameters.empty() && IsModel(parameters.front());
    if (takesModel && camera == CameraFrom::Model && IsModelMissing(texts, parameters)) {
        throw UsageError("no camera: MODEL or --camera gige:ADDRESS is required" + usage);
    }
    if (takesModel && camera == CameraFrom::Network && IsModelLeftOut(texts, parameters)) {
        parameters.erase(parameters.begin());
    }
    Distribute(texts, parameters, usage, given);
}

} // namespace Host
