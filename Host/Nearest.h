#pragma once

#include "Simulation/Suggestion.h"

namespace Host {

using Simulation::Suggestion;

} // namespace Host
