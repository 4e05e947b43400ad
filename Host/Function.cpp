#include "Host/Function.h"

#include "Common/Number.h"
#include "Common/Suggestion.h"
#include "Host/Errors.h"
#include "Host/Functions/Codes.h"

#include <algorithm>
#include <utility>

namespace Host {

bool FieldLimits::Admits(std::int64_t number) const {
    return admitted.empty() ? number >= min && number <= max
                            : std::find(admitted.begin(), admitted.end(), number) != admitted.end();
}

FieldLimits SingleValues(std::vector<std::int64_t> admitted) {
    const auto [first, last] = std::pair(admitted.front(), admitted.back());
    return {.min = first, .max = last, .admitted = std::move(admitted)};
}

bool Lock::IsOpen(const Value& value) const {
    return std::find(open.begin(), open.end(), value.numbers.at(0)) != open.end();
}

Function& Function::Range(std::int64_t min, std::int64_t max) {
    limits.assign(shape.fields.size(), {.min = min, .max = max});
    return *this;
}

Function& Function::OneOf(std::int64_t first, std::int64_t last) {
    Range(first, last);
    for (FieldLimits& field : limits) {
        for (std::int64_t number = first; number <= last; ++number) {
            field.admitted.push_back(number);
        }
    }
    return *this;
}

Function& Function::OneOf(Host::Codes named) {
    OneOf(named.front().value, named.back().value);
    for (FieldLimits& field : limits) {
        field.admitted.clear();
        for (const Code& code : named) {
            field.admitted.push_back(code.value);
        }
    }
    return Named(named);
}

Function& Function::OnOff() { return OneOf(Named::onOff); }

std::string Instance::Name() const {
    return std::string(function->name) + (function->indexed ? "." + std::to_string(index) : "");
}

std::vector<Instance> InstancesOf(const Function& function) {
    std::vector<Instance> instances;
    for (std::uint32_t index = 0; index < function.count; ++index) {
        instances.push_back({&function, index});
    }
    return instances;
}

std::vector<Instance> FindIn(const Functions& table, std::string_view name) {
    const std::string_view row = name.substr(0, name.find('.'));
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Function& function) { return function.name == row; });
    if (found == table.end()) {
        std::vector<std::string> known;
        for (const Function& function : table) {
            known.emplace_back(function.name);
        }
        throw UsageError("unknown function \"" + std::string(name) + '"' + Common::Suggestion(row, known));
    }
    if (row.size() == name.size()) {
        return InstancesOf(*found);
    }
    const auto index = Common::ParseWhole<std::uint32_t>(name.substr(row.size() + 1));
    if (!found->indexed || !index || *index >= found->count) {
        throw UsageError(
            "unknown function \"" + std::string(name) + "\": " + std::string(row) +
            (found->indexed ? " has indices 0 to " + std::to_string(found->count - 1) : " takes no index"));
    }
    return {{&*found, *index}};
}

} // namespace Host
