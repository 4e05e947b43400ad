#include "Tests/Fuzz/Session.h"

#include <algorithm>
#include <array>
#include <string>

namespace Fuzz {

namespace {

/// Texts that mean something: properties of every kind, addresses good and bad.
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
    const Call call = Calls()[session.input.Choice(Calls().size())];
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
