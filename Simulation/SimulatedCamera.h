#pragma once

#include "Simulation/Faults.h"
#include "Simulation/RegisterSpace.h"
#include "Simulation/SettingsSets.h"

#include <SDK4/IControlPort.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Simulation {

/// A simulated camera: a port with a register space behind it.
///
/// The camera ignores writes to read-only registers, writes to instances that do not exist, and invalid codes. It
/// clamps numbers. Then the behaviours of the register run. An access to addresses that the camera does not have throws
/// InvalidAddressError.
///
/// The clock is simulated: it advances by half a millisecond per port access, and when a host advances it. So the same
/// accesses always have the same results.
class SimulatedCamera final : public SDK4::IControlPort {
public:
    /// Runs after a write: adjusts the value, or others that follow from it. What a behaviour sets triggers no further
    /// behaviour.
    using Behaviour = std::function<void(RegisterSpace&, const RegisterSpace::Change&)>;
    /// Runs at each time step. Steps are counted from power-up.
    using Step = std::function<void(RegisterSpace&, std::uint64_t step)>;
    /// Updates registers that follow from others.
    using Update = std::function<void(RegisterSpace&)>;

    static constexpr std::chrono::microseconds accessTime{500};
    static constexpr std::chrono::milliseconds stepTime{32};

    explicit SimulatedCamera(RegisterSpace::Registers registers);
    SimulatedCamera(const SimulatedCamera&) = delete; // its behaviours refer to it
    SimulatedCamera& operator=(const SimulatedCamera&) = delete;

    // For hosts.

    /// Advances the clock without an access.
    void Advance(std::chrono::microseconds time);

    /// Restarts the camera: resets all registers except non-volatile ones to their power-up values.
    void Restart();

    /// Injects a fault. The register is given by its name or its address (0x14010000):
    ///
    /// | Text                | The camera ...                                                                     |
    /// |---------------------|------------------------------------------------------------------------------------|
    /// | ignore:gain         | ignores writes to the register; does not execute a command                         |
    /// | clamp:exposure=1000 | limits each written word to 1000                                                   |
    /// | offset:gain=1       | adds 1 to each written word, even past its limit; may be negative                  |
    /// | fail:0x14010000     | throws PortError on accesses that touch the register, or the four bytes at the     |
    /// |                     | address if no register begins there                                                |
    /// | failread:, failwrite: | the same for one direction                                                       |
    /// | null:measurewindow  | returns null when a block is read there                                            |
    /// | endless:agc         | does not stop the automatic mode once it was on                                    |
    /// | stale:gain          | does not load the register from settings sets                                      |
    ///
    /// @throws FaultError for an invalid text, or a register or address that this camera does not have
    void InjectFault(std::string_view fault) { faults.Inject(fault, space, automatics); }

    /// The registers, without going through the port.
    [[nodiscard]] RegisterSpace& Registers() { return space; }
    [[nodiscard]] const RegisterSpace& Registers() const { return space; }

    // For models of cameras.

    /// Adds a behaviour that runs after each accepted write of the register. Behaviours run in the order added.
    void AfterWrite(const std::string& name, Behaviour behaviour);
    void AfterWrite(const std::string& name, Update update);
    /// Adds work for each time step.
    void EachStep(Step step) { steps.push_back(std::move(step)); }
    /// Adds an update that runs now, and after each settings load and restart.
    void Derive(Update update);
    /// Makes the register read-only during acquisition.
    void LockWhileAcquiring(const std::string& name) { locked.insert(name); }
    /// Declares that the register switches an automatic mode.
    void DeclareAutomatic(const std::string& mode);
    /// Whether the automatic mode runs: it is on, or a fault keeps it running.
    [[nodiscard]] bool Runs(const std::string& mode) { return faults.Runs(mode, space.Get(mode)[0] != 0); }

    [[nodiscard]] SettingsSets& Sets() { return sets; }
    [[nodiscard]] const SettingsSets& Sets() const { return sets; }
    [[nodiscard]] std::chrono::microseconds Time() const { return now; }
    void SetTime(std::chrono::microseconds time) { now = time; }

    void WriteRegister(std::uint32_t address, std::uint32_t value) override;
    std::uint32_t ReadRegister(std::uint32_t address) override;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override;
    std::uint64_t ReadRegisterPair(std::uint32_t address) override;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override;
    /// The text stays valid until the next call of this operation on this camera.
    char* ReadString(std::uint32_t address, std::uint32_t length) override;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;

private:
    /// Advances the clock, checks the addresses, applies faults. @throws PortError
    void BeginAccess(const char* operation, bool writes, std::uint32_t address, std::size_t length);
    void Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length);
    void Read(const char* operation, std::uint32_t address, void* data, std::uint64_t length);
    [[nodiscard]] std::uint32_t AsWord(std::uint32_t address, std::uint32_t bytes) const;
    [[nodiscard]] bool IsAcquiring() const { return space.Get("startacquisition")[0] != 0; }
    [[nodiscard]] bool IsLocked(const std::string& name) const { return locked.contains(name) && IsAcquiring(); }
    /// Clamps the written value, or restores the previous one. Returns whether the write is accepted.
    [[nodiscard]] bool Accept(const RegisterSpace::Change& change);
    void LoadSettings(std::uint32_t number);

    RegisterSpace space;
    const RegisterSpace::Content powerUp;
    SettingsSets sets;
    Faults faults;
    std::chrono::microseconds now{0};
    std::vector<std::pair<std::string, Behaviour>> behaviours;
    std::vector<Step> steps;
    std::vector<Update> updates;
    std::set<std::string> automatics;
    std::set<std::string> locked;
    std::vector<char> text; ///< the last result of ReadString
};

} // namespace Simulation
