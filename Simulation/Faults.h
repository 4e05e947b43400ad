#pragma once

#include "Simulation/PortError.h"
#include "Simulation/RegisterSpace.h"

#include <cstdint>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Simulation {

/// A fault that cannot be injected: its text is not understood, or the camera has no such register.
class FaultError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// The faults that were injected into a camera; SimulatedCamera::InjectFault tells what there is.
class Faults {
public:
    /// @throws FaultError
    void Inject(std::string_view text, const RegisterSpace& space, const std::set<std::string>& automatics);

    /// @throws PortError if an access of these bytes is to fail.
    void Check(const char* operation, bool writes, std::uint32_t address, std::size_t length) const;
    /// Whether the read of a block there returns null.
    [[nodiscard]] bool ReturnsNull(std::uint32_t address) const { return nullBlocks.contains(address); }
    [[nodiscard]] bool Ignores(const std::string& name) const { return ignored.contains(name); }
    [[nodiscard]] bool IsStale(const std::string& name) const { return stale.contains(name); }
    /// Whether the automatic mode runs that is on, or that was on and does not stop.
    [[nodiscard]] bool Runs(const std::string& mode, bool on);
    /// Applies clamp and offset to what was written.
    void Distort(const Register& entry, Words& words) const;

private:
    struct Extent {
        std::uint64_t first;
        std::uint64_t last;
        bool reads;
        bool writes;
    };

    std::vector<Extent> failing;
    std::set<std::uint32_t> nullBlocks;
    std::set<std::string> ignored;
    std::set<std::string> stale;
    std::map<std::string, bool> endless; ///< by the mode's register: whether it has been on
    std::map<std::string, std::int64_t> highest;
    std::map<std::string, std::int64_t> offset;
};

} // namespace Simulation
