#pragma once

#include "Host/CallTrace.h"
#include "Host/Json.h"

#include <string>

namespace Host {

// Text and JSON output of what calls cost.

/// "1 access (read 0x14010000); cached 1, then 0"
[[nodiscard]] std::string DescribeCosts(const CallCosts& costs);

/// How the getter caches its value, as far as the calls show; empty without a getter
/// that accesses the camera.
[[nodiscard]] std::string DescribeCaching(const CallTrace& trace);

/// Adds the members register, get, set and cache.
void AddCalls(Json& document, const CallTrace& trace);

} // namespace Host
