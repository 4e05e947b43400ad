#pragma once

#include "Host/Value.h"

#include <SDK4/IControlPort.h>
#include <SDK4/IGigECamera.h>

#include <string>

namespace Host {

// The persistent address: "192.168.1.20,255.255.255.0,192.168.1.1" for address, mask and gateway, or "off".

/// Reads the bootstrap registers, which no interface does.
/// @throws X4Error SDK4_ERR_NOT_IMPLEMENTED if the camera supports no persistent address
[[nodiscard]] std::string GetPersistentIP(SDK4::IControlPort& port);

/// @throws std::runtime_error for another subnet than that of the camera now, which the library leaves alone; the
///         camera keeps what it holds
/// @throws X4Error SDK4_ERR_INVALID_PARAMETER for another text; SDK4_ERR_NOT_IMPLEMENTED if the camera did not take it
void SetPersistentIP(SDK4::Control::IGigECamera& camera, const char* text);

/// Why no camera can have that address; empty if one can.
[[nodiscard]] std::string WhyInvalidPersistentIP(const Value& value);

/// What happens at the next start of the camera if this machine is not in its subnet then.
[[nodiscard]] std::string CautionAboutPersistentIP(const Value& value);

} // namespace Host
