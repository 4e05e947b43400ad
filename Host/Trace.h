#pragma once

#include "Host/TracingPort.h"

namespace Host {

/// One line on standard error for a port access: direction, operation, address, data, duration.
void PrintAccess(const Access& access);

} // namespace Host
