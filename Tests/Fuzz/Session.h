#pragma once

#include "Tests/Fuzz/Failures.h"
#include "Tests/Fuzz/HostilePort.h"
#include "Tests/Fuzz/Input.h"

#include <SDK4/SDK4.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Fuzz {

/// One camera, opened by one input and played with until the input ends.
struct Session {
    Input& input;
    Failures failures{};
    HostilePort port{input, failures};
    IDynamicObject* camera = nullptr;
    unsigned int depth = 0; ///< operations that run: more than one when an observer calls back
};

/// One operation with arguments from the input. Does nothing on a camera whose family does not have it.
using Call = void (*)(Session&);
const std::vector<Call>& Calls();

/// Makes a call that the input chooses, and judges its end.
void CallAny(Session& session);

/// The host's observer of properties; the context is the session.
void Observe(const char* name, const char* attribute, void* context);

/// The arguments of one call, in the order of the parameters. What they point to is exactly as large as the host says,
/// and gone after the call.
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

/// The longest text that an operation may return.
template <auto operation> constexpr std::size_t longestText = 512;

template <typename Interface> Interface* Part(Session& session) {
    if constexpr (std::is_base_of_v<SDK4::IMediaType, Interface>) {
        auto& source = dynamic_cast<SDK4::Control::IDSMediaType&>(*session.camera);
        auto* type = source.GetMediaType();
        Require(type != nullptr && type == source.GetMediaType(), "a camera has one media type");
        return dynamic_cast<Interface*>(type);
    } else {
        return dynamic_cast<Interface*>(session.camera);
    }
}

template <auto operation, typename Result, typename Interface, typename... Parameters>
void Invoke(Session& session, Result (Interface::*)(Parameters...)) {
    auto* interface = Part<Interface>(session);
    if (interface == nullptr) {
        return;
    }
    Arguments arguments(session);
    const std::tuple<Parameters...> values{arguments.Draw<Parameters>()...}; // braces: from left to right
    const auto invoke = [interface](auto... value) { return (interface->*operation)(value...); };
    if constexpr (std::is_same_v<Result, const char*>) {
        const char* text = std::apply(invoke, values);
        Require(text == nullptr || strnlen(text, longestText<operation> + 1) <= longestText<operation>,
                "a text ends within its documented length");
    } else {
        std::apply(invoke, values);
    }
}

template <auto... operations> void Add(std::vector<Call>& calls) {
    (calls.push_back([](Session& session) { Invoke<operations>(session, operations); }), ...);
}

} // namespace Fuzz
