#pragma once

#include "../Control.h"
#include "../Format.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Host {

/// One call of the tour: how a host would write it, and the call itself. Steps are many: no more than the call and one
/// small function is made for each.
struct Step {
    const char* text;
    const void* call;
    std::string (*run)(const void* call); ///< makes the call and tells its result
};

template <typename Call> std::string RunCall(const void* call) {
    const Call& made = *static_cast<const Call*>(call);
    if constexpr (std::is_void_v<decltype(made())>) {
        made();
        return "ok";
    } else {
        return "= " + Format(made());
    }
}
template <typename Call> Step MakeStep(const char* text, const Call& call) { return {text, &call, &RunCall<Call>}; }

/// Makes both parts of a step from one expression, so that what is printed is what is called. A step is good within the
/// expression that it stands in.
// clang-format off
#define STEP(...) ::Host::MakeStep(#__VA_ARGS__, [&] { return __VA_ARGS__; })
// clang-format on

class Session;

/// A walk through the interfaces of an opened camera. Each step prints the call, its result or the name of the error,
/// and under it the port accesses that it cost. A step that does not end as it should is marked and counted.
class Tour {
public:
    struct MissingInterface {};

    Tour(Session& opened, std::ostream& stream);

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
    template <typename Interface> Interface& Get() { return Existing(dynamic_cast<Interface*>(control)); }

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
    void Tell(const std::string& text);

    /// A call that ends well.
    void Do(const Step& step) { Expect(0, step); }

    /// A call that is refused with that error.
    void Refused(SDK4_ERR code, const Step& step) { Expect(code, step); }

    /// A call that ends well on some cameras and is refused on the others.
    void DoIf(bool admitted, SDK4_ERR otherwise, const Step& step) { Expect(admitted ? 0 : otherwise, step); }

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

    void Expect(std::int32_t expected, const Step& step);
    void PrintOpening(const std::string& what);
    void PrintAccesses();
    void RunTopic(void (*topic)(Tour&));

    Session& session;
    IDynamicObject* control;
    std::ostream& out;
    std::vector<std::pair<std::size_t, std::string>> remarks; ///< of this call, behind how many of its accesses
    unsigned steps = 0;
    unsigned refusals = 0;
    unsigned accesses = 0;
    unsigned unexpected = 0;
};

} // namespace Host
