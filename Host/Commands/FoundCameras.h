#pragma once

#include "Host/Channel/Discovery.h"
#include "Host/Output.h"
#include "Host/Plugin.h"

namespace Host {

/// Prints a camera that was discovered, and how to reach it if its address fits no network card of this machine.
void PrintFound(Output& output, const Plugin& plugin, const FoundCamera& camera);

} // namespace Host
