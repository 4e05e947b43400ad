#pragma once

#include <Suggestion.h>

namespace Host {

using Simulation::Suggestion;

} // namespace Host
