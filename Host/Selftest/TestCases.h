#pragma once

#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// A value to write to a function.
struct TestCase {
    std::string what; ///< "maximum", "one above the maximum of red"
    Value value;
    bool admitted;
};

/// The current value, the bounds, the admitted values, and values just outside.
[[nodiscard]] std::vector<TestCase> TestCasesOf(const Instance& instance, const Limits& limits, const Refusal& refusal,
                                                const Value& current);

/// Clamps each field to its bounds.
[[nodiscard]] Value Clamped(const Limits& limits, Value value);

/// The values with one field increased or decreased by one, for a function without known limits.
[[nodiscard]] std::vector<Value> Neighbours(const Instance& instance, const Value& value, std::size_t field);

} // namespace Host
