#pragma once

#include "Host/Camera.h"
#include "Host/Json.h"

#include <optional>
#include <string>

namespace Host {

// How functions are shown to people and to programs.

/// "22235 us"
[[nodiscard]] std::string PrintWithUnit(const Instance& instance, const Value& value);

/// A text; one that is not UTF-8, which JSON cannot hold, as an object with its bytes: {"hex": "6e616d65e9"}.
[[nodiscard]] Json TextToJson(const std::string& text);

/// The names of functions, in a list.
[[nodiscard]] Json NamesToJson(const std::vector<Instance>& instances);

/// A number, the name of a code, a text as above, or for a record an object with its fields.
[[nodiscard]] Json ToJson(const Instance& instance, const Value& value);

/// What ToJson made, read back; numbers may stand for codes.
/// @return nothing for what is no value of the function
[[nodiscard]] std::optional<Value> FromJson(const Instance& instance, const Json& json);

/// "0..511", "off|on"; of a record one after the other, or one for all fields if they are the same.
[[nodiscard]] std::string DescribeLimits(const Instance& instance, const Limits& limits);

/// What has to be known about a function that was read: "read-only", "locked by agc=1", "not implemented (...)".
[[nodiscard]] std::string DescribeState(const Instance& instance, const Reading& reading);

/// What a value of the function looks like, for a user who gave something else: "0..511", "base:counter".
[[nodiscard]] std::string DescribeForm(const Instance& instance, const Limits& limits);

} // namespace Host
