#pragma once

#include "SimulatedCamera.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulation {

/// The bootstrap registers of the GigE Vision standard, the same for every camera but for its name and serial number;
/// and the description that they lead to.
[[nodiscard]] std::vector<Register> BootstrapRegisters(const std::string& model, std::uint32_t serial,
                                                       const std::string& description);
/// What the network registers do by themselves.
void AddBootstrapBehaviour(SimulatedCamera& camera);

} // namespace Simulation
