#pragma once

#include "Host/Session.h"
#include "Host/Settings/Settings.h"

namespace Host {

/// Reads what an open camera is set to, but for what it has no address for: that is missing then, and told on standard
/// error.
/// @throws OpenError while another program has control, without which not everything can be read
/// @throws std::runtime_error for what cannot be read for another reason; ChannelLost
[[nodiscard]] Settings TakeAllSettings(Session& session);

/// Reads what it is set to as far as it can be read, and tells on standard error what cannot, and why.
/// @throws ChannelLost
[[nodiscard]] Settings TakeReadableSettings(Session& session);

} // namespace Host
