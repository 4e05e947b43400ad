#include "Simulation/PortError.h"

#include <cstdio>
#include <utility>

namespace Simulation {

namespace {

std::string Hexadecimal(std::uint32_t address) {
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", address);
    return text;
}

} // namespace

PortError::PortError(std::string failedOperation, std::uint32_t failedAddress, std::string why)
    : std::runtime_error(failedOperation + " at " + Hexadecimal(failedAddress) + " failed: " + why),
      operation(std::move(failedOperation)),
      address(failedAddress),
      reason(std::move(why)) {}

InvalidAddressError::InvalidAddressError(std::string failedOperation, std::uint32_t failedAddress)
    : PortError(std::move(failedOperation), failedAddress, "the camera has no such address (0x8003)") {}

} // namespace Simulation
