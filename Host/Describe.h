#pragma once

#include "Host/Camera.h"
#include "Host/Json.h"

#include <optional>
#include <string>

namespace Host {

// Text and JSON output of functions.

/// "22235 us"
[[nodiscard]] std::string PrintWithUnit(const Instance& instance, const Value& value);

/// A text. One that is not UTF-8 becomes an object with its bytes: {"hex": "6e616d65e9"}.
[[nodiscard]] Json TextToJson(const std::string& text);

/// A text, or null for an empty one.
[[nodiscard]] Json TextOrNull(const std::string& text);

/// Adds what locks a function as the members lockedBy and needs, or null.
void AddLock(Json& document, const LockState& lock);

/// A list of function names.
[[nodiscard]] Json NamesToJson(const std::vector<Instance>& instances);

/// A number, the name of a code, a text as above, or for a record an object with its fields.
[[nodiscard]] Json ToJson(const Instance& instance, const Value& value);

/// The inverse of ToJson. Codes may be given as numbers.
/// @return nothing for an invalid value
[[nodiscard]] std::optional<Value> FromJson(const Instance& instance, const Json& json);

/// "0..511", "off|on"; for a record, those of each field, or only one if all are equal.
[[nodiscard]] std::string DescribeLimits(const Instance& instance, const Limits& limits);

/// "locked by agc=1, needs agc=off", or empty for a function that is not locked.
[[nodiscard]] std::string DescribeLock(const LockState& lock);

/// Why something failed: "SDK4_ERR_DISABLED (locked by ...)".
[[nodiscard]] std::string DescribeRefusal(const std::string& reason, const LockState& lock);

/// The state of a function: "read-only", "locked by ...", "not implemented (...)".
[[nodiscard]] std::string DescribeState(const Instance& instance, const Reading& reading);

/// The form of a value, for error messages: "0..511", "base:counter".
[[nodiscard]] std::string DescribeForm(const Instance& instance, const Limits& limits);

} // namespace Host
