#pragma once

#include "Tests/Fuzz/Failures.h"
#include "Tests/Fuzz/HostilePort.h"
#include "Tests/Fuzz/Input.h"

#include <SDK4/SDK4.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Fuzz {

/// One camera, opened by one input and used until the input ends.
struct Session {
    Input& input;
    Failures failures{};
    HostilePort port{input, failures};
    IDynamicObject* camera = nullptr;
    unsigned int depth = 0; ///< nested operations: more than one when an observer calls back
};

/// Makes a call chosen by the input, and checks its end.
void CallAny(Session& session);

/// The host's observer of properties; the context is the session.
void Observe(const char* name, const char* attribute, void* context);

/// The arguments of one call, in the order of the parameters. Pointers refer to buffers of exactly the stated size,
/// which are freed after the call.
class Arguments {
public:
    explicit Arguments(Session& owner) : session(owner) {}

    template <typename T> T Draw() {
        if constexpr (std::is_same_v<T, const char*>) {
            return Text();
        } else if constexpr (std::is_same_v<T, unsigned char*>) {
            return Buffer();
        } else if constexpr (std::is_same_v<T, unsigned int*>) {
            return &length;
        } else if constexpr (std::is_same_v<T, void*>) {
            return &session;
        } else if constexpr (std::is_same_v<T, SDK4::Control::SDK4_CALLBACK>) {
            return session.input.Choice(8) == 0 ? nullptr : Observe;
        } else if constexpr (std::is_same_v<T, bool>) {
            return session.input.Choice(2) != 0;
        } else if constexpr (std::is_class_v<T>) {
            return Record<T>();
        } else {
            return static_cast<T>(session.input.Word());
        }
    }

private:
    const char* Text();
    const char* Keep(std::string_view text);
    unsigned char* Buffer();

    template <typename T> T Record() {
        std::uint32_t words[sizeof(T) / sizeof(std::uint32_t)];
        for (std::uint32_t& word : words) {
            word = session.input.Word();
        }
        T record;
        std::memcpy(&record, words, sizeof record);
        return record;
    }

    Session& session;
    std::vector<std::unique_ptr<char[]>> texts;
    std::unique_ptr<unsigned char[]> buffer;
    unsigned int length = 0;
};

} // namespace Fuzz
