#pragma once

#include "Simulation/Register.h"

#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace Simulation {

/// What a camera holds. The port reaches it by address, the camera's own behaviour by a register's name.
///
/// Every access of the port is a read or a write of some bytes at an address; whether they came as a word, a pair, a
/// block, a text or memory makes no difference. A camera has these addresses, and no other ones:
///
/// | Addresses             | What is there                                                                    |
/// |-----------------------|----------------------------------------------------------------------------------|
/// | 0x00000000-0x000000F7 | the bootstrap registers of a discovery, and zeros where the standard reserves    |
/// | 0x000000F8-0x00FFFFFF | registers; what lies between them the camera does not have                       |
/// | 0xGGFF0000-0xGGFFFFFF | the camera's function GGFF: its register, and zeros behind it                    |
/// | 0xE0000000-0xFFFFFFFF | nothing for the port: the camera's internal state                                     |
///
/// Where no register is, zeros are read and nothing can be written. An indexed register is a selector and a value: a
/// write of the selector alone chooses an instance, a longer write sets the instance that it names, if there is one, a
/// write of the value or of a part of it the chosen one, and a read gives the chosen selector back, followed by its
/// value. Some registers take a selector of two words with its halves swapped when it is written alone.
class RegisterSpace {
public:
    explicit RegisterSpace(const std::vector<Register>& registers);
    RegisterSpace(const RegisterSpace&) = delete;
    RegisterSpace& operator=(const RegisterSpace&) = delete;

    /// A register whose value a write has reached.
    struct Change {
        const Register& entry;
        std::uint32_t index; ///< which instance
        Words before;        ///< what it held until then
    };

    /// Whether the port reaches all of these addresses; a length of 0 is that of one.
    [[nodiscard]] bool HasAddresses(std::uint32_t address, std::size_t length) const;
    void Read(std::uint32_t address, std::span<std::uint8_t> bytes) const;
    /// Writes without asking what the registers admit, and says which of them it reached.
    std::vector<Change> Write(std::uint32_t address, std::span<const std::uint8_t> bytes);

    /// How many instances of a register there are.
    [[nodiscard]] std::uint32_t Count(const std::string& name) const;
    /// The words of a register, of one instance of it if it is indexed.
    [[nodiscard]] Words Get(const std::string& name, std::uint32_t index = 0) const;
    /// The text in a plain register, up to the first zero.
    [[nodiscard]] std::string GetText(const std::string& name) const;
    void Set(const std::string& name, const Words& words, std::uint32_t index = 0);
    /// What was requested of a register that keeps it.
    [[nodiscard]] const Words& Requested(const std::string& name, std::uint32_t index = 0) const;
    void SetRequested(const std::string& name, const Words& words, std::uint32_t index = 0);

    /// The table's row of that name, or null.
    [[nodiscard]] const Register* Find(const std::string& name) const;
    /// The register that lies at the address, or null if none begins there.
    [[nodiscard]] const Register* At(std::uint32_t address) const;
    /// The registers that an access of that many bytes touches.
    [[nodiscard]] std::vector<const Register*> Touched(std::uint32_t address, std::size_t length) const;

    /// The words of each instance of a register.
    struct State {
        std::vector<Words> values;
        std::vector<Words> requests = {}; ///< empty for a register that keeps none

        bool operator==(const State&) const = default;
    };
    /// What registers hold, by name.
    using Content = std::map<std::string, State>;
    /// What all registers of the roles hold.
    [[nodiscard]] Content Save(const std::vector<Role>& roles) const;
    void Load(const Content& content);

private:
    /// A register and what it holds.
    struct Cell {
        Register entry;
        Bytes selector;              ///< the chosen one; empty for a plain register
        std::vector<Bytes> values;   ///< of each instance
        std::vector<Words> requests; ///< the same, if they are kept
    };

    [[nodiscard]] Cell& Named(const std::string& name) const;
    /// Which instance is chosen: the number of instances if there is none of that selector.
    [[nodiscard]] static std::size_t ChosenInstance(const Cell& cell);
    /// A register as it is read: the chosen selector, then the value behind it, zeros if there is none.
    [[nodiscard]] static Bytes BlockOf(const Cell& cell);
    /// Writes the register from the offset on.
    static void Write(Cell& cell, std::size_t offset, std::span<const std::uint8_t> bytes,
                      std::vector<Change>& changes);

    std::map<std::uint32_t, Cell> cells; ///< by address
    std::unordered_map<std::string, Cell*> byName;
};

} // namespace Simulation
