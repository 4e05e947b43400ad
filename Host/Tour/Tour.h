#pragma once

#include "../Format.h"
#include "../Session.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Host {

/// One call of the tour: how a host would write it, and the call itself.
template <typename Call> struct Step {
    const char* text;
    Call call;
};
template <typename Call> Step(const char*, Call) -> Step<Call>;

/// Makes both parts of a step from one expression, so that what is printed is what is called.
// clang-format off
#define STEP(...) ::Host::Step { #__VA_ARGS__, [&] { return __VA_ARGS__; } }
// clang-format on

/// A walk through the interfaces of an opened camera. Each step prints the call, its result or the name of the error,
/// and under it the port accesses that it cost. A step that does not end as it should is marked and counted.
class Tour {
public:
    struct MissingInterface {};

    Tour(Session& opened, std::ostream& stream) : session(opened), out(stream) {}

    /// Walks the topics of the camera's family, then prints a summary.
    /// @return whether every step ended as it should
    [[nodiscard]] bool Run();

    /// Begins a section about an interface.
    /// @throw MissingInterface, which ends the topic, if the control does not have it
    template <typename Interface> Interface& Section(const char* name, const char* about) {
        Heading(name, about);
        return Get<Interface>();
    }

    /// Another interface, needed within a section.
    template <typename Interface> Interface& Get() { return Existing(session.As<Interface>()); }

    /// Opens the camera once more and tells what that cost.
    [[nodiscard]] Control OpenAgain(std::int32_t index);

    /// An interface of a control that was opened so.
    template <typename Interface> static Interface& Of(const Control& control) {
        return Existing(dynamic_cast<Interface*>(control.get()));
    }

    void Heading(const char* name, const char* about);

    /// A line, or several, that tells what the next steps show.
    void Note(const std::string& text);

    /// A line of its own.
    void Line(const std::string& text);

    /// Tells of what happens in the middle of a call, in its place among the call's port accesses.
    void Tell(const std::string& text) { remarks.emplace_back(session.Port().Count(), text); }

    /// A call that ends well.
    template <typename Call> void Do(const Step<Call>& step) { Expect(0, step); }

    /// A call that is refused with that error.
    template <typename Call> void Refused(SDK4_ERR code, const Step<Call>& step) { Expect(code, step); }

    /// A call that ends well on some cameras and is refused on the others.
    template <typename Call> void DoIf(bool admitted, SDK4_ERR otherwise, const Step<Call>& step) {
        Expect(admitted ? 0 : otherwise, step);
    }

    // What the camera is, known once its function-model identifier was read.
    bool color = false;
    bool memory = false;

private:
    template <typename Interface> static Interface& Existing(Interface* found) {
        if (found == nullptr) {
            throw MissingInterface{};
        }
        return *found;
    }

    template <typename Call> void Expect(std::int32_t expected, const Step<Call>& step) {
        RunStep(expected, step.text, [&]() -> std::string {
            if constexpr (std::is_void_v<decltype(step.call())>) {
                step.call();
                return "ok";
            } else {
                return "= " + Format(step.call());
            }
        });
    }

    void RunStep(std::int32_t expected, const char* text, const std::function<std::string()>& call);
    void PrintOpening(const std::string& what);
    void PrintAccesses();
    void PrintAccess(const Access& access);
    void RunTopic(void (*topic)(Tour&));

    Session& session;
    std::ostream& out;
    std::vector<std::pair<std::size_t, std::string>> remarks; ///< of this call, behind how many of its accesses
    unsigned steps = 0;
    unsigned refusals = 0;
    unsigned accesses = 0;
    unsigned unexpected = 0;
};

} // namespace Host
