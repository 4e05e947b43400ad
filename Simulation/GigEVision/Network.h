#pragma once

#include <cstdint>

namespace Simulation::GigEVision {

/// The mask of the network of this machine that the address belongs to; of none, a mask of that address alone.
[[nodiscard]] std::uint32_t MaskOf(std::uint32_t address);

} // namespace Simulation::GigEVision
