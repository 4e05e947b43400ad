#pragma once

#include <SDK4/X4Error.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace Fuzz {

/// Checks an invariant. A violation aborts the process, so that the input is kept.
inline void Require(bool holds, const char* what) {
    if (holds) {
        return;
    }
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

/// An exception that the library does not know, with a number to identify it.
struct Unplugged {
    unsigned int number;
};

/// The exceptions that port and observer throw into the library. Each must leave the call that caused it, unchanged.
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

    /// For the one read whose failure the library ignores.
    [[noreturn]] static void ThrowUnseen() { throw Unplugged{0}; }

    /// Makes a call and checks its end. Any other exception terminates the process.
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
    std::optional<std::int32_t> error;   ///< thrown, and not yet seen by Watch
    std::optional<unsigned int> foreign; ///< the same
    unsigned int count = 0;
};

} // namespace Fuzz
