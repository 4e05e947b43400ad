#pragma once

#include <cstdint>

namespace Test {

// The heap of this process, the plug-in, its C++ run-time library and C code included. For programs that are built with
// Allocations.cpp.

/// How often memory was asked for until now.
std::uint64_t Allocations();

/// The blocks that are held right now. Sanitized runs have the leak check instead and always answer 0.
std::int64_t LiveAllocations();

} // namespace Test
