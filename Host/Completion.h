#pragma once

#include "Common/Completion.h"
#include "Host/Camera.h"

#include <string>
#include <vector>

namespace Host {

/// What may be at the end of a command line of the program: commands, options, cameras, functions, values. Functions
/// and values are those of the simulated camera that is named, or of --force-model; of both families if there is none.
/// No camera on the network is accessed.
/// @param line of bash
/// @param replaced what bash will replace, as for Matching
[[nodiscard]] Common::Candidates Complete(const std::string& line, const std::string& replaced);

/// The same for a line of the shell.
/// @param camera the one that is open; its limits may be read
[[nodiscard]] Common::Candidates CompleteInShell(const std::string& line, const std::string& replaced,
                                                 const Camera& camera);

} // namespace Host
