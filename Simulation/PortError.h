#pragma once

#include "Common/Number.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Simulation {

/// An access that failed.
class PortError : public std::runtime_error {
public:
    /// @param failed the operation of the port, such as "WriteRegister"
    PortError(const std::string& failed, std::uint32_t at, const std::string& why)
        : std::runtime_error(failed + " at " + Common::Hex(at) + " failed: " + why),
          operation(failed),
          address(at),
          reason(why) {}

    std::string operation;
    std::uint32_t address;
    std::string reason;
};

/// An access to addresses that the camera does not have. On a control channel, the camera answers status 0x8003.
class InvalidAddressError final : public PortError {
public:
    InvalidAddressError(const std::string& failed, std::uint32_t at)
        : PortError(failed, at, "the camera has no such address (0x8003)") {}
};

} // namespace Simulation
