#pragma once

#include "Host/Command.h"

#include <string>

namespace Host {

/// A command and its parameters, for a recording. Names of files are replaced by the names of their parameters.
[[nodiscard]] std::string CommandText(const Command& command, const Invocation::Given& given);

/// CAMERA as it was given, without the file of a recording.
[[nodiscard]] std::string CameraText(const Invocation::Given& given);

} // namespace Host
