#pragma once

#include "Host/Json.h"
#include "Host/Settings/Restorer.h"
#include "Host/Settings/Settings.h"

namespace Host {

/// A result, as restore --json prints it.
[[nodiscard]] Json ToJson(const RestoreResult& result);

/// A difference, as diff --json prints it.
[[nodiscard]] Json ToJson(const Difference& difference);

} // namespace Host
