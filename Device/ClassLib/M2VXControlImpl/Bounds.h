#pragma once

#include "Log.h"

#include <cstdint>

namespace SDK4::Control {

/// The number of an instance or channel, which is refused above @p bound, before anything else is looked at.
/// @throws X4Error SDK4_ERR_INVALID_PARAMETER
inline std::uint32_t UpTo(std::uint32_t bound, std::uint32_t number) {
    if (number > bound)
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    return number;
}

} // namespace SDK4::Control
