#pragma once

#include "Simulation/SimulatedCamera.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulation {

/// What identifies a camera on a network.
struct Identity {
    std::string model;
    std::uint32_t number; ///< of 24 bits, for the MAC address
    std::string serial;
    std::string description; ///< in GenICam's language
};

/// The bootstrap registers of the GigE Vision standard, the same for every camera but for its identity; and the
/// description that they lead to.
[[nodiscard]] std::vector<Register> BootstrapRegisters(const Identity& identity);
/// The behaviour of the network registers.
void AddBootstrapBehaviour(SimulatedCamera& camera);

} // namespace Simulation
