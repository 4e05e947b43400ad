#pragma once

#include "Benchmarks/Table.h"

namespace Bench {

/// The rows to compare with.
inline constexpr const char* peerRead = "Aravis: cached integer read";
inline constexpr const char* peerWrite = "Aravis: range-checked integer write";

/// Adds a camera simulated by Aravis in this process, with its register cache and range check on.
/// @throws std::runtime_error if either does not work
void AddPeer(Table& table);

} // namespace Bench
