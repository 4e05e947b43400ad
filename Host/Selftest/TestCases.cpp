#include "Host/Selftest/TestCases.h"

#include <algorithm>
#include <limits>

namespace Host {

namespace {

bool Fits(const Field& field, std::int64_t number) {
    return field.isSigned ? number >= std::numeric_limits<std::int32_t>::min() &&
                                number <= std::numeric_limits<std::int32_t>::max()
                          : number >= 0 && number <= std::numeric_limits<std::uint32_t>::max();
}

/// A number between the bounds that is not admitted, or an admitted one if there is no gap.
std::int64_t Gap(const FieldLimits& field) {
    std::int64_t number = field.min;
    while (!field.admitted.empty() && number < field.max && field.Admits(number)) {
        ++number;
    }
    return number;
}

Value Replaced(Value value, std::size_t field, std::int64_t number) {
    value.numbers[field] = number;
    return value;
}

} // namespace

std::vector<TestCase> TestCasesOf(const Instance& instance, const Limits& limits, const Refusal& refusal,
                                  const Value& current) {
    std::vector<TestCase> testCases{{"the value it holds", current, true}};
    if (limits.empty()) {
        return testCases;
    }
    // Fields may depend on each other, as the edges of an area do: all of them go to the same bound.
    Value least;
    Value most;
    for (const FieldLimits& field : limits) {
        least.numbers.push_back(field.min);
        most.numbers.push_back(field.max);
    }
    testCases.push_back({"minimum", least, true});
    testCases.push_back({"maximum", most, true});
    for (std::size_t i = 0; i < limits.size(); ++i) {
        const Field& field = instance->shape.fields[i];
        const std::string of = *field.name == '\0' ? "" : std::string(" of ") + field.name;
        for (const std::int64_t number : limits[i].admitted) {
            testCases.push_back({"admitted value" + of, Replaced(least, i, number), true});
        }
        // An unsigned field that clamps takes -1 as a very large number.
        const bool isLarge = limits[i].min == 0 && !refusal.keeps;
        if (!isLarge && Fits(field, limits[i].min - 1)) {
            testCases.push_back({"one below the minimum" + of, Replaced(least, i, limits[i].min - 1), false});
        }
        if (Fits(field, limits[i].max + 1)) {
            testCases.push_back({"one above the maximum" + of, Replaced(most, i, limits[i].max + 1), false});
        }
        if (const std::int64_t gap = Gap(limits[i]); !limits[i].Admits(gap)) {
            testCases.push_back({"value not admitted" + of, Replaced(least, i, gap), false});
        }
    }
    return testCases;
}

Value Clamped(const Limits& limits, Value value) {
    for (std::size_t i = 0; i < limits.size(); ++i) {
        value.numbers[i] = std::clamp(value.numbers[i], limits[i].min, limits[i].max);
    }
    return value;
}

std::vector<Value> Neighbours(const Instance& instance, const Value& value, std::size_t field) {
    std::vector<Value> neighbours;
    for (const std::int64_t step : {1, -1}) {
        const std::int64_t number = value.numbers[field] + step;
        const bool isBelowAll = number < 0 && value.numbers[field] >= 0; // may be unsigned
        if (!isBelowAll && Fits(instance->shape.fields[field], number)) {
            neighbours.push_back(Replaced(value, field, number));
        }
    }
    return neighbours;
}

} // namespace Host
