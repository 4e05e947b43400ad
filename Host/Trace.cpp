#include "Host/Trace.h"

#include "Common/Number.h"
#include "Host/Format.h"

#include <cmath>
#include <iostream>

namespace Host {

void PrintAccess(const Access& access) {
    std::cout.flush(); // keeps accesses and results in order
    std::cerr << (access.write ? "write " : "read  ") << Pad(access.operation, 18) << Common::Hex(access.address)
              << "  " << FormatBytes(access.data) << (access.failed ? " (failed)" : "") << "  "
              << std::lround(access.microseconds) << " us\n";
}

} // namespace Host
