#include "Simulation/PortError.h"

#include "Common/Number.h"

#include <utility>

namespace Simulation {

PortError::PortError(std::string failedOperation, std::uint32_t failedAddress, std::string why)
    : std::runtime_error(failedOperation + " at " + Common::Hex(failedAddress) + " failed: " + why),
      operation(std::move(failedOperation)),
      address(failedAddress),
      reason(std::move(why)) {}

InvalidAddressError::InvalidAddressError(std::string failedOperation, std::uint32_t failedAddress)
    : PortError(std::move(failedOperation), failedAddress, "the camera has no such address (0x8003)") {}

} // namespace Simulation
