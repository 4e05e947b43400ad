#pragma once

#include "Simulation/Register.h"

#include <map>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace Simulation {

/// The registers of a camera. The port accesses them by address, the camera's own behaviour by name.
///
/// Every port access reads or writes bytes at an address, whether as a word, pair, block, text or memory. A camera has
/// these addresses only:
///
/// | Addresses             | Content                                                                          |
/// |-----------------------|----------------------------------------------------------------------------------|
/// | 0x00000000-0x000000F7 | bootstrap registers of a discovery; zeros where the standard reserves addresses  |
/// | 0x000000F8-0x00FFFFFF | registers; the camera does not have the addresses between them                   |
/// | 0xGGFF0000-0xGGFFFFFF | function GGFF of the camera: its register, followed by zeros                     |
/// | 0xE0000000-0xFFFFFFFF | internal state, inaccessible to the port                                         |
///
/// Addresses without a register read as zero and ignore writes. An indexed register is a selector and a value. A write
/// of the selector alone selects an instance. A longer write sets the instance that it names, if it exists. A write of
/// the value, or part of it, sets the selected instance. A read returns the selector, then the selected value. Some
/// registers expect a selector of two words swapped when it is written alone.
class RegisterSpace {
public:
    using Registers = std::shared_ptr<const std::vector<Register>>; ///< cameras of a model share them

    explicit RegisterSpace(Registers registers);
    RegisterSpace(const RegisterSpace&) = delete;
    RegisterSpace& operator=(const RegisterSpace&) = delete;

    /// A register whose value was written.
    struct Change {
        const Register& entry;
        std::uint32_t index; ///< the instance
        Words before;        ///< the previous value
    };

    /// Whether the port can access all of these addresses. A length of 0 counts as 1.
    [[nodiscard]] bool HasAddresses(std::uint32_t address, std::size_t length) const;
    void Read(std::uint32_t address, std::span<std::uint8_t> bytes) const;
    /// Writes without checking limits. Returns the registers whose value was written.
    std::vector<Change> Write(std::uint32_t address, std::span<const std::uint8_t> bytes);

    /// The number of instances.
    [[nodiscard]] std::uint32_t Count(const std::string& name) const;
    /// The words of a register, or of one instance of an indexed register.
    [[nodiscard]] Words Get(const std::string& name, std::uint32_t index = 0) const;
    /// The text in a plain register, up to the first zero.
    [[nodiscard]] std::string GetText(const std::string& name) const;
    void Set(const std::string& name, const Words& words, std::uint32_t index = 0);
    /// The requested value, of a register that keeps it.
    [[nodiscard]] const Words& Requested(const std::string& name, std::uint32_t index = 0) const;
    void SetRequested(const std::string& name, const Words& words, std::uint32_t index = 0);

    /// All registers, by address.
    [[nodiscard]] std::vector<std::string> Names() const;
    /// The register of that name, or null.
    [[nodiscard]] const Register* Find(const std::string& name) const;
    /// The register that begins at the address, or null.
    [[nodiscard]] const Register* At(std::uint32_t address) const;
    /// The registers that an access of these bytes touches.
    [[nodiscard]] std::vector<const Register*> Touched(std::uint32_t address, std::size_t length) const;

    /// The content of one register.
    struct State {
        std::vector<Words> values;
        std::vector<Words> requests = {}; ///< empty for a register that keeps no requests

        bool operator==(const State&) const = default;
    };
    /// The content of registers, by name.
    using Content = std::map<std::string, State>;
    /// The content of all registers with these roles.
    [[nodiscard]] Content Save(const std::vector<Role>& roles) const;
    void Load(const Content& content);

private:
    /// A register and its content.
    struct Cell {
        const Register* entry;
        Bytes selector;              ///< of the selected instance; empty for a plain register
        std::size_t chosen;          ///< the selected instance; the number of instances if none has the selector
        std::vector<Bytes> values;   ///< of each instance
        std::vector<Words> requests; ///< of each instance, if they are kept
    };

    [[nodiscard]] Cell& Named(const std::string& name) const;
    /// Finds the instance of the selector.
    static void Choose(Cell& cell);
    /// The bytes that a read returns: the selector, then the selected value, or zeros if there is none.
    [[nodiscard]] static Bytes BlockOf(const Cell& cell);
    /// Writes to the register, from the offset on.
    static void Write(Cell& cell, std::size_t offset, std::span<const std::uint8_t> bytes,
                      std::vector<Change>& changes);

    const Registers shared;
    std::map<std::uint32_t, Cell> cells; ///< by address
    std::unordered_map<std::string, Cell*> byName;
};

} // namespace Simulation
