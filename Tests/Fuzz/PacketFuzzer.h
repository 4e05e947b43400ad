#pragma once

#include <cstddef>
#include <cstdint>

namespace Fuzz {

/// Sends the datagrams that the input says to a simulated camera on the network, without one. Ends the process if the
/// camera answers what it must not, or no longer serves.
/// @return how many datagrams there were
std::size_t PlayDatagrams(const std::uint8_t* bytes, std::size_t size);

} // namespace Fuzz
