#pragma once

#include "Log.h"

#include <cstdint>
#include <iterator>

namespace SDK4::Control {

/// Checks the number of an instance or channel against @p bound. Comes before every other check.
/// @throws X4Error SDK4_ERR_INVALID_PARAMETER
inline std::uint32_t UpTo(std::uint32_t bound, std::uint32_t number) {
    if (number > bound) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    return number;
}

/// One of the instances or channels of a property.
/// @throws X4Error SDK4_ERR_INVALID_PARAMETER
template <typename Instances> auto& At(Instances& instances, std::uint32_t number) {
    return instances[UpTo(static_cast<std::uint32_t>(std::size(instances)) - 1, number)];
}

} // namespace SDK4::Control
