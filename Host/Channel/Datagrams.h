#pragma once

#include <string>

namespace Host {

// Network requests without Aravis. Addresses are IPv4.

/// Whether discovery reaches a network: an interface is up, has an IPv4 address, and is neither loopback nor a
/// point-to-point link, which Aravis ignores.
[[nodiscard]] bool HasNetworkInterface();

/// The local address used to send to an address. Sends nothing.
/// @throws OpenError if it cannot be reached
[[nodiscard]] std::string LocalAddressFor(const std::string& address);

} // namespace Host
