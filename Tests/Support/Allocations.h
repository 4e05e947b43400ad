#pragma once

#include <cstdint>

namespace Test {

// The heap of this process, including the plug-in, its C++ run-time library and C code. For programs built with
// Allocations.cpp.

/// The number of allocations so far.
std::uint64_t Allocations();

/// The number of allocated blocks. In sanitized builds, which have the leak check instead, always 0.
std::int64_t LiveAllocations();

} // namespace Test
