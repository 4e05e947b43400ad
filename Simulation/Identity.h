#pragma once

#include "Simulation/RegisterSpace.h"

#include <cstdint>
#include <stdexcept>
#include <string>

// The identity of one camera of a model: a serial number, held by a bootstrap and a vendor register, and a MAC address.
namespace Simulation {

/// An invalid serial number or MAC address. The text says what is valid.
class IdentityError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

[[nodiscard]] std::string SerialNumberOf(const RegisterSpace& space);
/// The content of the serial number registers.
/// @param serial visible ASCII characters that fit into both registers
/// @throws IdentityError
[[nodiscard]] RegisterSpace::Content SerialNumberRegisters(const RegisterSpace& space, const std::string& serial);

/// 48 bits.
[[nodiscard]] std::uint64_t MacNumberOf(const RegisterSpace& space);
/// Such as "02:00:12:07:07:10".
[[nodiscard]] std::string MacAddressOf(const RegisterSpace& space);
/// The content of the MAC address registers.
/// @throws IdentityError
[[nodiscard]] RegisterSpace::Content MacAddressRegisters(const std::string& mac);

} // namespace Simulation
