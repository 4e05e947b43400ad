#pragma once

#include "Command.h"

#include <string>

namespace Host {

/// Whether a parameter stands in its place, and is no option.
[[nodiscard]] bool IsPositional(const Parameter& parameter);
/// What it is called in messages: "NAME" for "[NAME...]".
[[nodiscard]] std::string BareName(const Parameter& parameter);

/// A camera on the network says itself what model it is, so that MODEL may be left out: gives each text to the
/// parameter that it was meant for, after the parser has filled them in order. MODEL is the first text, if enough is
/// left for what else is required; before functions, it must also be one that none of them looks like, with a capital
/// letter or a blank and without "=".
/// @throw UsageError if something else is missing, or too much
void LeaveModelOut(const Command& command, Invocation::Given& given);

} // namespace Host
