#include "Positionals.h"

#include "Errors.h"

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

/// Whether the first of the texts is meant for MODEL, before another parameter.
bool StartsWithModel(const std::vector<std::string>& texts, const Parameter& other) {
    const std::size_t leftToOther = IsOptional(other) ? 0 : 1;
    return texts.size() > leftToOther && (!TakesSeveral(other) || LooksLikeModel(texts.front()));
}

/// Gives the texts to the parameters in order.
void Distribute(const std::vector<std::string>& texts, const std::vector<Parameter>& parameters,
                Invocation::Given& given) {
    auto text = texts.begin();
    for (const Parameter& parameter : parameters) {
        if (text != texts.end()) {
            const auto end = TakesSeveral(parameter) ? texts.end() : text + 1;
            given[parameter.name].assign(text, end);
            text = end;
        } else if (!IsModel(parameter) && !IsOptional(parameter)) {
            throw UsageError(BareName(parameter) + " is required");
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

void LeaveModelOut(const Command& command, Invocation::Given& given) {
    std::vector<Parameter> parameters;
    std::vector<std::string> texts;
    for (const Parameter& parameter : command.parameters) {
        if (IsPositional(parameter)) {
            parameters.push_back(parameter);
            const auto& some = given[parameter.name];
            texts.insert(texts.end(), some.begin(), some.end());
            given.erase(parameter.name);
        }
    }
    if (parameters.size() > 1 && IsModel(parameters.front()) && !StartsWithModel(texts, parameters.back())) {
        parameters.erase(parameters.begin());
    }
    Distribute(texts, parameters, given);
}

} // namespace Host
