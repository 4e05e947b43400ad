#pragma once

#include "Memory.h"
#include "Register.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Simulation {

/// What a camera holds. The port reaches it by address, the camera's own behaviour by a register's name.
///
/// Every access of the port is a read or a write of some bytes at an address; whether they came as a word, a pair, a
/// block, a text or memory makes no difference. Plain registers, and every address that no register claims, are memory.
/// An indexed register is a selector and a value: a write of the selector alone chooses an instance, a longer write
/// sets the instance that it names, and a read gives the chosen selector back, followed by its value. Some registers
/// take a selector of two words with its halves exchanged when it is written alone.
class RegisterSpace {
public:
    explicit RegisterSpace(const std::vector<Register>& registers);

    void Read(std::uint32_t address, std::span<std::uint8_t> bytes) const;
    void Write(std::uint32_t address, std::span<const std::uint8_t> bytes);

    /// How many instances of a register there are.
    [[nodiscard]] std::uint32_t Count(const std::string& name) const;
    /// The words of a register, of one instance of it if it is indexed.
    [[nodiscard]] Words Get(const std::string& name, std::uint32_t index = 0) const;
    void Set(const std::string& name, const Words& words, std::uint32_t index = 0);

    /// The register that lies at the address, if one begins there.
    [[nodiscard]] const Register* At(std::uint32_t address) const;
    /// Whether an access of that many bytes touches the register.
    [[nodiscard]] bool Touches(std::uint32_t address, std::size_t length, const std::string& name) const;

    /// All registers of role Setting with what they hold.
    using Settings = std::map<std::string, std::vector<Instance>>;
    [[nodiscard]] Settings SaveSettings() const;
    void LoadSettings(const Settings& settings);

private:
    struct IndexedRegister {
        std::size_t selectorBytes = 0;
        std::size_t valueBytes = 0;
        bool exchanged = false;
        Bytes selected;
        std::map<Bytes, Bytes> instances; ///< by selector; one that is missing reads as zeros
    };

    [[nodiscard]] const Register& Named(const std::string& name) const;
    [[nodiscard]] Bytes ValueOf(const Register& entry, const Bytes& selector) const;
    void SetValueOf(const Register& entry, const Bytes& selector, const Bytes& value);

    std::map<std::uint32_t, Register> byAddress;
    std::map<std::string, std::uint32_t> addresses; ///< by name
    std::map<std::uint32_t, IndexedRegister> indexed;
    Memory memory;
};

} // namespace Simulation
