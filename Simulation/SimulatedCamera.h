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

/// A camera that lives in memory: the port that a host hands to the library, with a register space behind it.
///
/// The camera checks what a host writes: a write to a read-only register or to an instance that does not exist is
/// ignored, and so is a code that is not admitted; a number is clamped. Then the behaviours of the register run.
/// An access to addresses that the camera does not have throws InvalidAddressError.
///
/// The camera has a simulated clock: each port access takes half a millisecond, and nothing else does unless a host
/// advances the clock. So the same accesses always have the same results.
class SimulatedCamera final : public SDK4::IControlPort {
public:
    /// Runs after a register was written: adjusts the value, or others that follow from it. What a behaviour sets
    /// triggers no further behaviour.
    using Behaviour = std::function<void(RegisterSpace&, const RegisterSpace::Change&)>;
    /// Runs at each time step, which is counted from power-up.
    using Step = std::function<void(RegisterSpace&, std::uint64_t step)>;
    /// Updates registers that follow from others.
    using Update = std::function<void(RegisterSpace&)>;

    static constexpr std::chrono::microseconds accessTime{500};
    static constexpr std::chrono::milliseconds stepTime{32}; ///< between two time steps

    explicit SimulatedCamera(const std::vector<Register>& registers);
    SimulatedCamera(const SimulatedCamera&) = delete; // its behaviours know it
    SimulatedCamera& operator=(const SimulatedCamera&) = delete;

    // For hosts.

    /// Advances the clock without an access, as while a host waits.
    void Advance(std::chrono::microseconds time);

    /// Restarts the camera: what is not in non-volatile memory is reset to its power-up value.
    void Restart();

    /// Injects a fault, to see whether a host notices. One text is one fault; a register is
    /// named, or given by its address (0x14010000):
    ///
    /// | Text                | The camera ...                                                                     |
    /// |---------------------|------------------------------------------------------------------------------------|
    /// | ignore:gain         | ignores what is written to the register; a command is not carried out              |
    /// | clamp:exposure=1000 | holds 1000 when more is written (each word of the register)                        |
    /// | offset:gain=1       | holds more than was written (each word), past the limit too; may be negative       |
    /// | fail:0x14010000     | does not answer: accesses that touch the register throw PortError; an address that |
    /// |                     | no register begins at stands for the four bytes there                              |
    /// | failread:, failwrite: | the same for one direction                                                       |
    /// | null:measurewindow  | answers the read of a block that begins there with nothing                         |
    /// | endless:agc         | does not stop the automatic mode once it was on                                    |
    /// | stale:gain          | leaves the register as it is when a settings set is loaded                         |
    ///
    /// @throws FaultError for a text that is none of these, or a register or an address that this camera does not have.
    void InjectFault(std::string_view fault) { faults.Inject(fault, space, automatics); }

    /// The registers, without going through the port.
    [[nodiscard]] RegisterSpace& Registers() { return space; }
    [[nodiscard]] const RegisterSpace& Registers() const { return space; }

    // For those who build cameras.

    /// Adds a behaviour that runs after each accepted write of the named register, in the order of the calls.
    void AfterWrite(const std::string& name, Behaviour behaviour);
    void AfterWrite(const std::string& name, Update update);
    /// Adds work for each time step.
    void EachStep(Step step) { steps.push_back(std::move(step)); }
    /// Adds an update that runs now and after each settings load and restart.
    void Derive(Update update);
    /// Makes the register read-only during acquisition.
    void LockWhileAcquiring(const std::string& name) { locked.insert(name); }
    /// Declares the register as the switch of an automatic mode.
    void DeclareAutomatic(const std::string& mode);
    /// Whether the automatic mode of that register is on, or goes on although it should not.
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
    /// Advances the clock, checks the addresses, applies the faults. @throws PortError
    void BeginAccess(const char* operation, bool writes, std::uint32_t address, std::size_t length);
    void Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length);
    void Read(const char* operation, std::uint32_t address, void* data, std::uint64_t length);
    [[nodiscard]] bool IsAcquiring() const { return space.Get("startacquisition")[0] != 0; }
    [[nodiscard]] bool IsLocked(const std::string& name) const { return locked.contains(name) && IsAcquiring(); }
    /// Clamps what was written to the register, or takes it back. Returns whether the write is accepted.
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
    std::vector<char> text; ///< what ReadString handed out last
};

} // namespace Simulation
