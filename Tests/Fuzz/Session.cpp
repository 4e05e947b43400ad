#include "Tests/Fuzz/Session.h"

#include "Tests/Operations/Published.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <type_traits>

namespace Fuzz {

namespace {

/// Meaningful texts: properties of every kind, valid and invalid addresses.
constexpr std::array<std::string_view, 24> words = {
    "",
    "gain",
    "exposure",
    "exposuremode",
    "agc",
    "abc",
    "automaticlevel",
    "autogainstopmode",
    "brightness",
    "recursivefilter",
    "automotiondetection",
    "shadingcorrection",
    "shadingcorrectionmode",
    "circularblankingposition.xpos",
    "overlayposition.ypos",
    "measurewindow.vstretch",
    "defectpixel.mode",
    "defectpixelcount",
    "motorcontrol",
    "loadsettings",
    "192.168.0.10",
    "0.0.0.0",
    "1..2",
    "99999999999999999999.4294967296.-1.+7.8",
};

constexpr std::array<std::string_view, 5> attributes = {"minimum", "maximum", "value", "enabled", "implemented"};

/// The longest text that an operation may return.
std::size_t LongestText(const char* operation) {
    static const std::map<std::string, std::size_t> documented = {{"IGigECamera::GetMacAddress", 17},
                                                                  {"IGigECamera::GetCurrentIPAddress", 15},
                                                                  {"IGigECamera::GetCurrentSubnetmask", 15},
                                                                  {"IGigECamera::GetCurrentDefaultGateway", 15},
                                                                  {"IGigECamera::GetUserDefinedName", 16},
                                                                  {"IGufi::GetDeviceName", 20},
                                                                  {"IGufi::GetSerialNumber", 20},
                                                                  {"IGufi::GetSoftwareBuild", 20},
                                                                  {"IPropertyList::GetPropertyName", 255}};
    const auto found = documented.find(operation);
    return found == documented.end() ? 512 : found->second;
}

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

/// Calls one operation with arguments from the input. Does nothing if the camera does not have it.
template <typename Interface, typename Result, typename... Parameters>
void Invoke(Session& session, Result (Interface::*operation)(Parameters...), std::size_t longestText) {
    auto* interface = Part<Interface>(session);
    if (interface == nullptr) {
        return;
    }
    Arguments arguments(session);
    const std::tuple<Parameters...> values{arguments.Draw<Parameters>()...}; // braces: evaluated from left to right
    const auto invoke = [&](auto... value) { return (interface->*operation)(value...); };
    if constexpr (std::is_same_v<Result, const char*>) {
        const char* text = std::apply(invoke, values);
        Require(text == nullptr || strnlen(text, longestText + 1) <= longestText,
                "a text ends within its documented length");
    } else {
        std::apply(invoke, values);
    }
}

using Call = std::function<void(Session&)>;

/// Every operation of both families. Inputs choose them by position.
const std::vector<Call>& Calls() {
    static const std::vector<Call> all = [] {
        std::vector<Call> calls;
        ::Test::ForEachOperation([&](const char* name, auto operation) {
            calls.emplace_back(
                [operation, longest = LongestText(name)](Session& session) { Invoke(session, operation, longest); });
        });
        return calls;
    }();
    return all;
}

} // namespace

const char* Arguments::Keep(std::string_view text) {
    auto& kept = texts.emplace_back(new char[text.size() + 1]);
    std::copy(text.begin(), text.end(), kept.get());
    kept[text.size()] = '\0';
    return kept.get();
}

const char* Arguments::Text() {
    const std::size_t kind = session.input.Choice(words.size() + 3);
    if (kind < words.size()) {
        return Keep(words[kind]);
    }
    if (kind == words.size()) {
        return nullptr;
    }
    if (kind == words.size() + 1) {
        return Keep(std::string(session.input.Word() & 0xFFFF, static_cast<char>(session.input.Byte() | 1)));
    }
    std::string text(session.input.Choice(64), '\0');
    std::generate(text.begin(), text.end(), [this] { return static_cast<char>(session.input.Byte()); });
    return Keep(text.c_str());
}

unsigned char* Arguments::Buffer() {
    length = session.input.Word() & 0xFF;
    buffer = std::make_unique<unsigned char[]>(length);
    return buffer.get();
}

void CallAny(Session& session) {
    const Call& call = Calls()[session.input.Choice(Calls().size())];
    ++session.depth;
    session.failures.Watch([&] { call(session); });
    --session.depth;
}

void Observe(const char* name, const char* attribute, void* context) {
    auto& session = *static_cast<Session*>(context);
    Require(strnlen(name, 256) < 256, "the observer is told a name");
    Require(std::find(attributes.begin(), attributes.end(), attribute) != attributes.end(), "and an attribute");
    const std::uint8_t reaction = session.input.Byte();
    if (reaction == 0xFF) {
        session.failures.ThrowForeign();
    }
    if (reaction == 0xFE) {
        session.failures.ThrowError(SDK4_ERR_ERROR);
    }
    constexpr unsigned int deepest = 3;
    if (reaction >= 0x80 && session.depth < deepest) {
        CallAny(session);
    }
}

} // namespace Fuzz
