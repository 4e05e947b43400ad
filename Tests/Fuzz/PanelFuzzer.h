#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Fuzz {

constexpr std::string_view panelToken = "0123456789abcdef0123456789abcdef";

/// Clients connect to a server of the control panel that has this token, whatever its service, and send what the input
/// says: requests, frames, anything. Aborts the process if an answer is not one of HTTP, if the server does not close
/// what its clients have ended, or if it serves no longer.
/// @return whether a client had the token
bool VisitPanel(std::uint16_t port, const std::uint8_t* bytes, std::size_t size);

} // namespace Fuzz
