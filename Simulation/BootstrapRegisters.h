#pragma once

#include "Simulation/SimulatedCamera.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulation {

/// The identity of a camera on a network.
struct Identity {
    std::string model;
    std::uint32_t number; ///< 24 bits of the MAC address
    std::string serial;
    std::string description; ///< GenICam XML, in a zip archive
};

/// The bootstrap registers of the GigE Vision standard, which differ between cameras only in the identity, and the
/// description that they refer to.
[[nodiscard]] std::vector<Register> BootstrapRegisters(const Identity& identity);
/// The behaviour of the network registers.
void AddBootstrapBehaviour(SimulatedCamera& camera);

} // namespace Simulation
