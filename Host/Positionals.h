#pragma once

#include "Host/Command.h"

#include <string>

namespace Host {

/// Where a command's camera comes from.
enum class CameraFrom {
    Model,   ///< simulated, of the MODEL that has to be given
    Network, ///< it says itself what MODEL it is, which may be left out
    Shell,   ///< the one that the shell has open, for which there is no MODEL
};

/// Whether a parameter stands in its place, and is no option.
[[nodiscard]] bool IsPositional(const Parameter& parameter);
/// What it is called in messages: "NAME" for "[NAME...]".
[[nodiscard]] std::string BareName(const Parameter& parameter);

/// Gives each text to the parameter that it was meant for, after the parser has filled them in order. MODEL is the
/// first text, unless it is left out or missing: then the first text is a function or an assignment, or too little is
/// left for what else is required and it does not look like a model either, with a capital letter or a blank.
/// @throws UsageError if something is missing, or too much
void AssignPositionals(const Command& command, CameraFrom camera, Invocation::Given& given);

} // namespace Host
