#include "Host/Panel/Client.h"

namespace Host::Panel {

namespace {

/// @return 0 for what is no number, or none of 32 bits
std::uint32_t NumberIn(const Json& json) {
    const auto* const number = json.Number();
    return number == nullptr || *number < 0 || *number > UINT32_MAX ? 0 : static_cast<std::uint32_t>(*number);
}

std::optional<Area> AreaIn(const Json& json) {
    const auto* const sides = json.Elements();
    if (sides == nullptr || sides->size() != 4) {
        return std::nullopt;
    }
    return Area{NumberIn((*sides)[0]), NumberIn((*sides)[1]), NumberIn((*sides)[2]), NumberIn((*sides)[3])};
}

} // namespace

void Client::Show(const Json& view) {
    visible = view["visible"].IsTrue();
    trace = view["trace"].IsTrue();
    functions.clear();
    if (const auto* const names = view["functions"].Elements()) {
        for (const Json& name : *names) {
            functions.insert(name.Text() == nullptr ? "" : *name.Text());
        }
    }
    const Json& shown = view["picture"];
    picture.reset();
    if (shown.Members() != nullptr) {
        picture = PictureView{NumberIn(shown["width"]), NumberIn(shown["height"]), AreaIn(shown["area"])};
    }
    trigger = shown["trigger"].IsTrue();
    awaits = true; // what it has is of another view
}

} // namespace Host::Panel
