#pragma once

#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// A value to be written to a function, to see what becomes of it.
struct TestCase {
    std::string what; ///< "maximum", "one above the maximum of red"
    Value value;
    bool admitted;
};

/// The value that the function holds, its bounds, what it admits, and what lies just outside.
[[nodiscard]] std::vector<TestCase> TestCasesOf(const Instance& instance, const Limits& limits, const Refusal& refusal,
                                                const Value& current);

/// The admitted value that is nearest to another one, field by field.
[[nodiscard]] Value Clamped(const Limits& limits, Value value);

/// Values beside one, for a function of which nobody says what it admits: each field one more, and one less.
[[nodiscard]] std::vector<Value> Neighbours(const Instance& instance, const Value& value, std::size_t field);

} // namespace Host
