#pragma once

#include <SDK4/Callback.h>
#include <SDK4/X4Error.h>

#include <string>
#include <utility>
#include <vector>

namespace Test {

using Texts = std::vector<std::string>;

/// An observer of properties that records its notifications, as in "gain value". Register Notify with its address.
struct Observed {
    static void Notify(const char* name, const char* attribute, void* context) {
        static_cast<Observed*>(context)->events.push_back(std::string(name) + " " + attribute);
    }

    Texts Take() { return std::exchange(events, {}); }

    Texts events;
};

/// The name of the error code that a call throws, or "".
template <typename Call> std::string CodeOf(const Call& call) {
    try {
        call();
    } catch (const SDK4::X4Error& error) {
        return SDK4::ErrorName(error.code);
    }
    return "";
}

} // namespace Test
