#pragma once

#include "RegisterSpace.h"

#include <SDK4/IControlPort.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Simulation {

/// A camera that lives in memory: the port that a host hands to the library, with a register space behind it.
class SimulatedCamera final : public SDK4::IControlPort {
public:
    /// What the camera does by itself after a register was written: adjust the value, or others that follow from it.
    using Behaviour = std::function<void(RegisterSpace&)>;

    explicit SimulatedCamera(const std::vector<Register>& registers) : space(registers) {}

    /// Has the camera act after each write that reaches the named register, in the order in which this was called.
    /// What a behaviour sets itself calls no further behaviour.
    void AfterWrite(const std::string& name, Behaviour behaviour) {
        behaviours.emplace_back(name, std::move(behaviour));
    }

    /// What the camera holds, for a look past the port.
    [[nodiscard]] RegisterSpace& Registers() { return space; }

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
    void Write(std::uint32_t address, const void* data, std::uint64_t length);
    void Read(std::uint32_t address, void* data, std::uint64_t length) const;

    RegisterSpace space;
    std::vector<std::pair<std::string, Behaviour>> behaviours;
    std::vector<char> text; ///< what ReadString handed out last
};

} // namespace Simulation
