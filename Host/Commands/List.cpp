#include "Host/Commands/Commands.h"

#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Format.h"
#include "Host/Style.h"

#include <iostream>
#include <utility>

namespace Host {

namespace {

struct Row {
    std::string name;
    std::string value;
    std::string defaultValue;
    std::string limits;
    std::string state;
};

/// The defaults of all fields, where the family publishes them.
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

/// Whether a row stands for many instances, of which the first alone was read.
bool StandsForMany(const Instance& instance, bool all) { return !all && instance->count > fewInstances; }

/// What can be known of a function now.
struct Found {
    Reading reading;
    Limits limits;
    std::string state;
};

Found Look(const Camera& camera, const Instance& instance) {
    Found found{camera.Look(instance), {}, {}};
    Failure failure;
    if (found.reading.error == 0) {
        failure = Attempt([&] { found.limits = camera.LimitsOf(instance); });
    }
    found.state = failure.code == 0                ? DescribeState(instance, found.reading)
                  : failure.reason == needsControl ? "limits need control"
                                                   : "limits not readable (" + failure.reason + ")";
    return found;
}

bool HasValue(const Instance& instance, const Reading& reading) {
    return reading.error == 0 && instance->get != nullptr;
}

Row Describe(const Camera& camera, const Instance& instance, bool all) {
    const auto [reading, limits, state] = Look(camera, instance);
    const bool many = StandsForMany(instance, all);
    Row row;
    row.name = instance.Name() + (many ? ".." + std::to_string(instance->count - 1) : "");
    row.value = !HasValue(instance, reading) ? "-"
                : many                       ? std::to_string(instance->count) + " values"
                                             : PrintWithUnit(instance, reading.value);
    row.state = state;
    const auto defaultValue = DefaultOf(limits);
    row.defaultValue = defaultValue ? instance.Print(*defaultValue) : "";
    row.limits = instance->set != nullptr ? DescribeLimits(instance, limits) : "";
    return row;
}

/// What is too long for its column pushes the next ones aside, no further than it must.
void Print(const Row& row) {
    std::string line = row.name;
    const auto add = [&](std::size_t column, const std::string& cell) {
        if (!cell.empty()) {
            line = Pad(line + "  ", column) + cell;
        }
    };
    add(26, row.value);
    add(50, row.defaultValue);
    add(66, row.limits);
    add(92, row.state);
    const bool missing = row.state.find('(') != std::string::npos || row.state == needsControl;
    std::cout << (missing ? Dim(line) : row.state.starts_with("locked") ? Yellow(line) : line) << '\n';
}

void PrintTable(const Camera& camera, bool all) {
    bool begins = true;
    for (const Instance& instance : camera.All(all)) {
        const Row row = Describe(camera, instance, all); // before the heading: the camera may be lost by now
        if (std::exchange(begins, false)) {
            Print({"NAME", "VALUE", "DEFAULT", "LIMITS", "STATE"});
        }
        Print(row);
    }
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

Json Document(const Camera& camera, const Instance& instance, bool all) {
    const auto [reading, limits, state] = Look(camera, instance);
    const auto defaultValue = DefaultOf(limits);
    const bool many = StandsForMany(instance, all);
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
                  {"error", reading.error == 0 ? Json() : Json(reading.errorText)}};
    if (many) {
        document.Add("count", instance->count);
    }
    return document;
}

} // namespace

int List(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    const bool all = invocation.Has(Parameter::All);
    if (!invocation.Program().Json()) {
        PrintTable(camera, all);
        return Success;
    }
    Json document(Json::List{});
    for (const Instance& instance : camera.All(all)) {
        document.Add(Document(camera, instance, all));
    }
    std::cout << document.Print() << '\n';
    return Success;
}

} // namespace Host
