#pragma once

#include "Benchmarks/Table.h"

namespace Bench {

/// The rows that others are compared with.
inline constexpr const char* peerRead = "Aravis: cached integer read";
inline constexpr const char* peerWrite = "Aravis: range-checked integer write";

/// Adds a camera that Aravis simulates in the process, with its register cache and its range check on.
/// @throws std::runtime_error when one of both does not work
void AddPeer(Table& table);

} // namespace Bench
