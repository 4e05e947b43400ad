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

/// A fault that cannot be injected: its text is invalid, or the camera has no such register.
class FaultError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// The faults injected into a camera. SimulatedCamera::InjectFault documents them.
class Faults {
public:
    /// @throws FaultError
    void Inject(std::string_view text, const RegisterSpace& space, const std::set<std::string>& automatics);

    /// @throws PortError if a fault affects the access
    void Check(const char* operation, bool writes, std::uint32_t address, std::size_t length) const;
    /// Whether reading a block at the address returns null.
    [[nodiscard]] bool ReturnsNull(std::uint32_t address) const { return nullBlocks.contains(address); }
    [[nodiscard]] bool Ignores(const std::string& name) const { return ignored.contains(name); }
    [[nodiscard]] bool IsStale(const std::string& name) const { return stale.contains(name); }
    /// Whether the automatic mode runs: it is on, or it was on and an "endless" fault keeps it running.
    [[nodiscard]] bool Runs(const std::string& mode, bool on);
    /// Applies "clamp" and "offset" to written words.
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
    std::map<std::string, bool> endless; ///< by the mode's register: whether it was ever on
    std::map<std::string, std::int64_t> highest;
    std::map<std::string, std::int64_t> offset;
};

} // namespace Simulation
