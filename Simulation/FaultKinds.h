#pragma once

#include <span>
#include <string>
#include <vector>

namespace Simulation {

/// A kind of fault, in front of the colon.
struct FaultKind {
    const char* name;
    const char* example;
    const char* about;
};

[[nodiscard]] std::span<const FaultKind> FaultKinds();

/// A line for each kind, for the help of a program.
[[nodiscard]] std::string DescribeFaultKinds();

/// The faults that begin so, for completion: the kinds, then the registers of the model.
[[nodiscard]] std::vector<std::string> FaultsFor(const std::string& begun, const std::string& model);

} // namespace Simulation
