#include "Host/Assignment.h"

#include "Host/Describe.h"
#include "Host/Errors.h"

namespace Host {

FunctionValue ParseAssignment(const Camera& camera, const std::string& text) {
    const std::size_t equals = text.find('=');
    const std::string name = text.substr(0, equals);
    const Instance instance = camera.FindOne(name);
    if (instance->set == nullptr) {
        throw UsageError("\"" + name + "\" is read-only");
    }
    if (instance->trigger) {
        if (equals != std::string::npos) {
            throw UsageError("\"" + name + "\" takes no value: give the name only");
        }
        return {instance, {}};
    }
    if (equals == std::string::npos) {
        throw UsageError("no value for \"" + name + "\": NAME=VALUE is required");
    }
    const std::string given = text.substr(equals + 1);
    const auto value = instance.Parse(given);
    const std::string why = value ? instance.WhyInvalid(*value) : "";
    if (value && why.empty()) {
        return {instance, *value};
    }
    const std::string form = why.empty() ? DescribeForm(instance, camera.LimitsOf(instance)) : why;
    throw UsageError("invalid value \"" + given + "\" for " + name + (form.empty() ? "" : " (" + form + ")"));
}

std::vector<FunctionValue> ParseAssignments(const Camera& camera, const std::vector<std::string>& texts) {
    std::vector<FunctionValue> assignments;
    assignments.reserve(texts.size());
    for (const std::string& text : texts) {
        assignments.push_back(ParseAssignment(camera, text));
    }
    return assignments;
}

} // namespace Host
