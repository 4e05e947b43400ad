#pragma once

#include "Simulation/RegisterSpace.h"

#include <stdexcept>
#include <string>

// What identifies one camera of a model: a serial number, which the bootstrap registers and the camera's own registers
// hold, and a MAC address.
namespace Simulation {

/// A serial number or a MAC address that the camera cannot have; the text says what it may be.
class IdentityError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

[[nodiscard]] std::string SerialNumberOf(const RegisterSpace& space);
/// What the registers hold that tell the serial number.
/// @param serial visible ASCII characters, as many as both registers have room for
/// @throws IdentityError
[[nodiscard]] RegisterSpace::Content SerialNumberRegisters(const RegisterSpace& space, const std::string& serial);

/// Such as "02:00:12:07:07:10".
[[nodiscard]] std::string MacAddressOf(const RegisterSpace& space);
/// What the registers hold that tell the MAC address.
/// @throws IdentityError
[[nodiscard]] RegisterSpace::Content MacAddressRegisters(const std::string& mac);

} // namespace Simulation
