#pragma once

#include <SDK4/X4Error.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace Fuzz {

/// What must hold whatever the camera and the host do. Ends the process when it does not, so that the input is kept.
inline void Require(bool holds, const char* what) {
    if (holds) {
        return;
    }
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

/// An exception that the library does not know. Each has a number of its own.
struct Unplugged {
    unsigned int number;
};

/// What port and observer throw into the library: each exception comes out of the call that caused it, unchanged.
class Failures {
public:
    [[noreturn]] void ThrowError(std::int32_t code) {
        error = code;
        throw SDK4::X4Error(code);
    }

    [[noreturn]] void ThrowForeign() {
        foreign = ++count;
        throw Unplugged{count};
    }

    /// The one read whose failure the library swallows.
    [[noreturn]] static void ThrowUnseen() { throw Unplugged{0}; }

    /// Makes a call and judges its end. Any other exception than those two ends the process by itself.
    template <typename Call> void Watch(const Call& call) {
        Require(!error && !foreign, "an exception was swallowed, and the call went on");
        try {
            call();
            Require(!error && !foreign, "an exception was swallowed");
        } catch (const SDK4::X4Error& caught) {
            Require(!foreign, "a foreign exception was replaced");
            Require(error.value_or(caught.code) == caught.code, "an error was replaced");
            Require(error || SDK4::ErrorName(caught.code) != std::string_view("unknown error"), "an unknown code");
            Require(error || caught.code != SDK4_ERR_INVALID_INTERFACE, "an operation names a feature that is none");
        } catch (const Unplugged& caught) {
            Require(foreign == caught.number && !error, "an exception was replaced by an earlier one");
        }
        error.reset();
        foreign.reset();
    }

private:
    std::optional<std::int32_t> error;   ///< thrown, and not seen by Watch yet
    std::optional<unsigned int> foreign; ///< the same
    unsigned int count = 0;
};

} // namespace Fuzz
