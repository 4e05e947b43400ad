#pragma once

#include <cstdint>

namespace Test {

/// How often memory was asked for until now, by anyone in the process: the plug-in, its C++ run-time library, C code.
/// For programs that are built with Allocations.cpp.
std::uint64_t Allocations();

} // namespace Test
