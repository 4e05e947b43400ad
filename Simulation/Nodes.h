#pragma once

#include "Simulation/Features.h"
#include "Simulation/Register.h"

#include <set>
#include <string>
#include <vector>

namespace Simulation {

/// Nodes of a GenICam description.
struct Nodes {
    std::vector<std::string> features; ///< names of those that users see
    std::string xml;
};

/// The nodes of the register's words. The name is that of the register; where it has several words, their number
/// follows: "gain", "readoutarea_2". The word that selects an instance is "iomode_selector".
/// @param wanted the names of the nodes to make, among others
[[nodiscard]] std::string WordNodes(const Register& entry, const std::set<std::string>& wanted);

/// The nodes of a function, for each field one, behind a selector if the register has instances: IoModeSelector.
/// They refer to the nodes of the words.
[[nodiscard]] Nodes FeatureNodes(const Feature& feature, const Register& entry);

/// The number of words of a register, or of one instance of it.
[[nodiscard]] std::size_t WordCount(const Register& entry);

} // namespace Simulation
