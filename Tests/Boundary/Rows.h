#pragma once

// Helpers for tests that go through the whole table of operations.

#include "Tests/Boundary/CameraTest.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace Test {

inline bool IsError(const std::string& outcome) { return outcome.starts_with("SDK4_ERR"); }

inline std::vector<std::string> Split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = end + separator.size();
    }
    return parts;
}

/// Whether a row belongs to an interface, of either family.
inline bool IsOf(const char* interface, const Operation& row) {
    return row.name.substr(0, row.name.rfind("::")).ends_with(interface);
}

/// The rows of a family whose value the library caches: getters whose repetition makes no access. Width, height, format
/// and time per frame of the video frame are excluded, since they are other views of the same registers.
inline std::vector<const Operation*> CachedGetters(bool ofM2VX) {
    std::vector<const Operation*> getters;
    for (const Operation& row : Operations()) {
        if (row.state.IsM2VX() == ofM2VX && !row.accesses.firstUncached.empty() && row.accesses.again.empty() &&
            !IsError(row.result) && !row.state.before && !IsOf("IVideoFrame", row)) {
            getters.push_back(&row);
        }
    }
    return getters;
}

/// The results of these rows, "IGain::GetGain: 5".
inline std::vector<std::string> Outcomes(const Camera& camera, const std::vector<const Operation*>& rows) {
    std::vector<std::string> outcomes;
    outcomes.reserve(rows.size());
    for (const Operation* row : rows) {
        outcomes.push_back(row->name + ": " + Outcome(row->call, *camera.Object()));
    }
    return outcomes;
}

inline void PrintTo(const Operation& operation, std::ostream* stream) { *stream << operation.name; }

inline std::string TestName(const testing::TestParamInfo<Operation>& row) {
    std::string name = row.param.name;
    for (std::size_t at; (at = name.find("::")) != std::string::npos;) {
        name.replace(at, 2, "_");
    }
    std::replace(name.begin(), name.end(), '-', 'm');
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

} // namespace Test
