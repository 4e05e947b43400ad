#include "Host/FunctionState.h"

#include "Host/Describe.h"

#include <cstddef>

namespace Host {

namespace {

/// The defaults of all fields, if the family publishes them.
std::optional<Value> DefaultOf(const Limits& limits) {
    Value value;
    for (const FieldLimits& field : limits) {
        if (!field.defaultValue) {
            return std::nullopt;
        }
        value.numbers.push_back(*field.defaultValue);
    }
    return limits.empty() ? std::nullopt : std::optional(value);
}

/// How functions of a policy are saved and restored.
struct Restoring {
    const char* name; ///< in JSON
    const char* words;
};

/// In the order of RestorePolicy.
constexpr Restoring restorings[] = {
    {"never", "not a setting: neither saved nor restored"},
    {"setting", "saved, and restored in the order of list"},
    {"mode", "saved; switched off first and restored last"},
    {"output", "saved; restored only with --outputs"},
    {"network", "saved; restored only with --network"},
    {"address", "saved; restored only with --network, and if the camera keeps an address"},
};

const Restoring& RestoringOf(const Function& function) {
    return restorings[static_cast<std::size_t>(function.restore)];
}

Json LimitsToJson(const Instance& instance, const Limits& limits) {
    Json fields(Json::List{});
    for (std::size_t i = 0; i < limits.size(); ++i) {
        Json field;
        if (instance->shape.fields.size() > 1) {
            field.Add("field", instance->shape.fields[i].name);
        }
        field.Add("min", limits[i].min);
        field.Add("max", limits[i].max);
        if (!limits[i].admitted.empty()) {
            Json admitted;
            for (const std::int64_t number : limits[i].admitted) {
                admitted.Add(number);
            }
            field.Add("admitted", admitted);
        }
        fields.Add(field);
    }
    return fields;
}

Json CodesToJson(const Function& function) {
    Json codes(Json::Object{});
    for (const Code& code : function.codes) {
        codes.Add(code.name, code.value);
    }
    return codes;
}

/// The names of the fields; empty for a number or a text.
Json FieldsToJson(const Function& function) {
    Json fields(Json::List{});
    for (const Field& field : function.shape.fields) {
        if (*field.name != '\0') {
            fields.Add(Json(field.name));
        }
    }
    return fields;
}

} // namespace

FunctionState InspectFunction(const Camera& camera, const Instance& instance) {
    FunctionState state{camera.Inspect(instance), {}, {}, {}};
    if (state.reading.IsAccessible()) {
        state.limitsOutcome = Attempt([&] { state.limits = camera.LimitsOf(instance); });
        const bool isHeld = instance->set != nullptr && instance->get != nullptr;
        state.defaultValue = isHeld ? DefaultOf(state.limits) : std::nullopt;
    }
    return state;
}

bool HasValue(const Instance& instance, const FunctionState& state) {
    return state.reading.code == 0 && instance->get != nullptr;
}

std::string DescribeState(const Instance& instance, const FunctionState& state) {
    const Outcome& limits = state.limitsOutcome;
    return limits.code == 0                   ? DescribeState(instance, state.reading)
           : limits.cause == Cause::NoControl ? "limits need control"
                                              : "limits not readable (" + limits.reason + ")";
}

const char* DescribeRestoring(const Function& function) { return RestoringOf(function).words; }

Json FunctionToJson(const Instance& instance, const FunctionState& state, bool many) {
    const Function& function = *instance.function;
    const Reading& reading = state.reading;
    Json document{{"name", many ? std::string(function.name) : instance.Name()},
                  {"meaning", function.meaning},
                  {"interface", function.interfaceName},
                  {"topic", function.topic},
                  {"value", HasValue(instance, state) && !many ? ToJson(instance, reading.value) : Json()},
                  {"fields", FieldsToJson(function)},
                  {"unit", function.unit},
                  {"default", state.defaultValue ? ToJson(instance, *state.defaultValue) : Json()},
                  {"limits", LimitsToJson(instance, state.limits)},
                  {"codes", CodesToJson(function)},
                  {"form", TextOrNull(std::string(function.form))},
                  {"readable", function.get != nullptr},
                  {"writable", function.set != nullptr},
                  {"trigger", function.trigger},
                  {"restore", RestoringOf(function).name},
                  {"error", reading.code == 0 ? Json() : Json(reading.reason)}};
    AddLock(document, reading.lock);
    if (many) {
        document.Add("count", function.count);
    }
    return document;
}

} // namespace Host
