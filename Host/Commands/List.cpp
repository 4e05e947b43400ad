#include "Host/Commands/Commands.h"

#include "Common/Suggestion.h"
#include "Common/Text.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Format.h"
#include "Host/Style.h"

#include <algorithm>
#include <utility>

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

/// A line of the list.
struct Listed {
    Instance instance;
    bool many = false; ///< whether it stands for all instances, of which only the first is read
};

/// Those of some topics, or all if none is given.
/// @throws UsageError for an unknown topic
std::vector<Listed> OfTopics(const Camera& camera, const std::vector<std::string>& wanted, bool oneByOne) {
    std::vector<Listed> listed;
    std::vector<std::string> topics;
    for (const Instance& instance : camera.All(oneByOne)) {
        const std::string topic(instance->topic);
        if (std::find(topics.begin(), topics.end(), topic) == topics.end()) {
            topics.push_back(topic);
        }
        if (wanted.empty() || std::find(wanted.begin(), wanted.end(), topic) != wanted.end()) {
            listed.push_back({instance, !oneByOne && instance->count > fewInstances});
        }
    }
    for (const std::string& topic : wanted) {
        if (std::find(topics.begin(), topics.end(), topic) == topics.end()) {
            throw UsageError("unknown topic \"" + topic + "\"; the topics of " + camera.Model() + " are " +
                             Common::Join(topics) + Common::Suggestion(topic, topics));
        }
    }
    return listed;
}

/// The named functions, each instance by itself, then those of the topics.
/// @throws UsageError for an unknown function or topic
std::vector<Listed> Wanted(const Camera& camera, const Invocation& invocation) {
    std::vector<Listed> wanted;
    for (const std::string& name : invocation.Texts(Parameter::Names)) {
        for (const Instance& instance : camera.Find(name)) {
            wanted.push_back({instance});
        }
    }
    if (wanted.empty() || invocation.Has(Parameter::Topic)) {
        const auto more = OfTopics(camera, invocation.Texts(Parameter::Topic), invocation.Has(Parameter::All));
        wanted.insert(wanted.end(), more.begin(), more.end());
    }
    return wanted;
}

/// The current state of a function.
struct Found {
    Reading reading;
    Limits limits;
    std::optional<Value> defaultValue;
    Outcome limitsOutcome; ///< how reading the limits ended
};

Found Inspect(const Camera& camera, const Instance& instance) {
    Found found{camera.Inspect(instance), {}, {}, {}};
    if (found.reading.code == 0) {
        found.limitsOutcome = Attempt([&] { found.limits = camera.LimitsOf(instance); });
        found.defaultValue = DefaultOf(found.limits);
    }
    return found;
}

std::string StateOf(const Instance& instance, const Found& found) {
    const Outcome& limits = found.limitsOutcome;
    return limits.code == 0                   ? DescribeState(instance, found.reading)
           : limits.cause == Cause::NoControl ? "limits need control"
                                              : "limits not readable (" + limits.reason + ")";
}

bool HasValue(const Instance& instance, const Reading& reading) {
    return reading.code == 0 && instance->get != nullptr;
}

/// A cell that is too long moves the next ones no further than necessary.
std::string Row(std::string name, const std::string& value, const std::string& defaultValue, const std::string& limits,
                const std::string& state) {
    const auto add = [&](std::size_t column, const std::string& cell) {
        name = cell.empty() ? name : Pad(name + "  ", column) + cell;
    };
    add(26, value);
    add(50, defaultValue);
    add(66, limits);
    add(92, state);
    return name;
}

std::string Describe(const Instance& instance, const Found& found, bool many) {
    const std::string last = std::to_string(instance->count - 1);
    const std::string value = !HasValue(instance, found.reading) ? "-"
                              : many                             ? std::to_string(instance->count) + " values"
                                                                 : PrintWithUnit(instance, found.reading.value);
    const std::string row =
        Row(instance.Name() + (many ? ".." + last : ""), value,
            found.defaultValue ? instance.Print(*found.defaultValue) : "",
            instance->set != nullptr ? DescribeLimits(instance, found.limits) : "", StateOf(instance, found));
    return found.reading.code != 0 ? Dim(row) : found.reading.lockedBy.empty() ? row : Yellow(row);
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

Json ToJson(const Instance& instance, const Found& found, bool many) {
    const auto& [reading, limits, defaultValue, limitsOutcome] = found;
    Json codes(Json::Object{});
    for (const Code& code : instance->codes) {
        codes.Add(code.name, code.value);
    }
    Json document{{"name", many ? std::string(instance->name) : instance.Name()},
                  {"interface", instance->interfaceName},
                  {"topic", instance->topic},
                  {"value", HasValue(instance, reading) && !many ? ToJson(instance, reading.value) : Json()},
                  {"unit", instance->unit},
                  {"default", defaultValue ? ToJson(instance, *defaultValue) : Json()},
                  {"limits", LimitsToJson(instance, limits)},
                  {"codes", codes},
                  {"readable", instance->get != nullptr},
                  {"writable", instance->set != nullptr},
                  {"lockedBy", reading.lockedBy.empty() ? Json() : Json(reading.lockedBy)},
                  {"error", reading.code == 0 ? Json() : Json(reading.reason)}};
    if (many) {
        document.Add("count", instance->count);
    }
    return document;
}

} // namespace

int List(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    Output output = invocation.Output();
    bool begins = true;
    for (const auto& [instance, many] : Wanted(camera, invocation)) {
        const Found found = Inspect(camera, instance); // before the heading, because it throws if the camera is lost
        if (std::exchange(begins, false)) {
            output.Line(Row("NAME", "VALUE", "DEFAULT", "LIMITS", "STATE"));
        }
        output.Add(Describe(instance, found, many), ToJson(instance, found, many));
    }
    output.End();
    return Success;
}

} // namespace Host
