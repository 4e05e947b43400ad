#pragma once

#include "Host/Session.h"
#include "Host/Settings/Selection.h"
#include "Host/Settings/Settings.h"

namespace Host {

/// Reads the settings of an open camera. Functions for which the camera has no address are noted as missing and
/// reported on standard error.
/// @throws OpenError while another program has control
/// @throws std::runtime_error for a function that cannot be read for another reason; ChannelLost
[[nodiscard]] Settings TakeAllSettings(Session& session);

/// Reads the settings that a selection needs and that can be read, and reports the others on standard error.
/// @throws ChannelLost
[[nodiscard]] Settings TakeReadableSettings(Session& session, const Selection& selection);

} // namespace Host
