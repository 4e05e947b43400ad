#pragma once

#include "Host/Json.h"
#include "Host/Panel/Live.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace Host::Panel {

/// What a client shows, and what it has been told.
struct Client {
    bool visible = false;
    std::set<std::string> functions{}; ///< that it shows
    bool trace = false;
    std::optional<PictureView> picture{};
    bool trigger = false;
    bool awaits = true; ///< a picture

    std::uint64_t values = 0;    ///< version of the values that it knows
    std::uint64_t documents = 0; ///< version of the functions that it knows
    std::uint64_t accesses = 0;  ///< that it has been told of

    /// Takes over a "view" message. What is missing or of another type counts as not shown.
    void Show(const Json& view);
};

} // namespace Host::Panel
