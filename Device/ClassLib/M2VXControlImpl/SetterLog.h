#pragma once

// The line that a setter logs on entry: "Call(" its values ")", separated by commas, records field by field.

#include "Log.h"

#include <SDK4/Records.h>

#include <ostream>
#include <tuple>
#include <utility>

namespace SDK4::Control {

// clang-format off
inline auto Fields(const SDK4_KCIRCULARPOSITION&  r) { return std::tie(r.xpos, r.ypos); }
inline auto Fields(const SDK4_KSTYLE&             r) { return std::tie(r.color, r.style); }
inline auto Fields(const SDK4_KOVERLAYSIZE&       r) { return std::tie(r.width, r.length); }
inline auto Fields(const SDK4_KMWCIRCLE&          r) { return std::tie(r.radius, r.width, r.xpos, r.ypos, r.vstretch); }
inline auto Fields(const SDK4_KDEFECTPIXEL&       r) { return std::tie(r.xpos, r.ypos, r.mode); }
inline auto Fields(const SDK4_KDEFECTPIXELSELECT& r) { return std::tie(r.pair, r.position); }
inline auto Fields(const SDK4_KDEVICESELECT&      r) { return std::tie(r.value1, r.value2, r.value3); }
// clang-format on

/// The values of a setter, for a log line.
template <typename... Values> struct CallValues {
    explicit CallValues(const Values&... arguments) : values(arguments...) {}

    std::tuple<const Values&...> values;
};

inline void Put(std::ostream& stream, const char* text) { stream << (text == nullptr ? "" : text); }

template <typename Value> void Put(std::ostream& stream, const Value& value) {
    if constexpr (requires { Fields(value); }) {
        std::apply([&stream](const auto&... fields) { stream << CallValues(fields...); }, Fields(value));
    } else {
        stream << value;
    }
}

template <typename... Values> std::ostream& operator<<(std::ostream& stream, const CallValues<Values...>& call) {
    std::apply(
        [&stream](const auto&... values) {
            const char* separator = "";
            ((stream << std::exchange(separator, ","), Put(stream, values)), ...);
        },
        call.values);
    return stream;
}

} // namespace SDK4::Control

/// Logs the entry of a setter with its values.
#define SDK4_LOG_SETTER(...) SDK4_LOG(Info, "Call(" << ::SDK4::Control::CallValues(__VA_ARGS__) << ")")
