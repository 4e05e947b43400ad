#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Simulation {

/// An access that failed.
class PortError : public std::runtime_error {
public:
    PortError(std::string operation, std::uint32_t address, std::string reason);

    std::string operation; ///< of the port, such as "WriteRegister"
    std::uint32_t address;
    std::string reason;
};

/// An access to addresses that the camera does not have. Over a control channel it is answered with status 0x8003.
class InvalidAddressError final : public PortError {
public:
    InvalidAddressError(std::string operation, std::uint32_t address);
};

} // namespace Simulation
