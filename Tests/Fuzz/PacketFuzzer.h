#pragma once

#include <cstddef>
#include <cstdint>

namespace Fuzz {

/// Passes the datagrams of the input to a simulated device, without a network. Aborts the process if the device answers
/// incorrectly or stops working.
/// @return the number of datagrams
std::size_t PlayDatagrams(const std::uint8_t* bytes, std::size_t size);

} // namespace Fuzz
