#include "Host/Recording/CommandText.h"

#include "Common/Text.h"
#include "Host/CameraName.h"

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

/// Whose values are no names of files.
constexpr Parameter recordedParameters[] = {
    Parameter::Register, Parameter::Assignments, Parameter::Count,   Parameter::Every, Parameter::Interval,
    Parameter::Names,    Parameter::Registers,   Parameter::Seconds, Parameter::Topic, Parameter::Words};

constexpr std::string_view replayPrefix = "replay:";

std::string Quoted(const std::string& word) {
    return word.find_first_of(" \t#") == std::string::npos ? word : '"' + word + '"';
}

std::string WithoutFile(const Syntax& syntax, const std::string& value) {
    const bool isCamera = IsCamera(value) || syntax.parameter == Parameter::Camera;
    if (value.starts_with(replayPrefix)) {
        return std::string(replayPrefix) + "FILE";
    }
    const bool isKept = isCamera || std::find(std::begin(recordedParameters), std::end(recordedParameters),
                                              syntax.parameter) != std::end(recordedParameters);
    const std::string_view name = syntax.name;
    return isKept ? Quoted(value) : std::string(name.substr(name.rfind(' ') + 1));
}

} // namespace

std::string CommandText(const Command& command, const Invocation::Given& given) {
    std::string text = command.name;
    for (const Syntax& syntax : command.syntax) {
        const auto found = given.find(syntax.parameter);
        if (found == given.end()) {
            continue;
        }
        const std::string name = syntax.name;
        const bool isOption = name.starts_with('-');
        if (isOption) {
            text += ' ' + name.substr(0, name.find(' '));
        }
        if (isOption && name.find(' ') == std::string::npos) {
            continue;
        }
        for (const std::string& value : found->second) {
            text += ' ' + WithoutFile(syntax, value);
        }
    }
    return text;
}

std::string CameraText(const Invocation::Given& given) {
    const auto found = given.find(Parameter::Camera);
    return found == given.end() ? "" : WithoutFile({Parameter::Camera}, found->second.front());
}

} // namespace Host
