#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Simulation {

using Bytes = std::vector<std::uint8_t>;
using Words = std::vector<std::uint32_t>;

[[nodiscard]] Bytes ToBytes(const Words& words);
[[nodiscard]] Words ToWords(const Bytes& bytes);

/// Who changes a register, and how loading settings and restarting the camera affect it.
enum class Role {
    Fixed,       ///< never changes
    Status,      ///< reports and internal state, read-only for hosts
    Setting,     ///< saved and loaded with settings sets
    NonVolatile, ///< in permanent memory, outside the settings sets
    Volatile,    ///< commands and other values that a restart resets
    Channel,     ///< belongs to the control channel; used only by a device on the network
};

/// Whether the camera ignores writes by hosts.
[[nodiscard]] constexpr bool IsReadOnly(Role role) {
    return role == Role::Fixed || role == Role::Status || role == Role::Channel;
}

/// One of the values at an address, and its selector.
struct Instance {
    Bytes selector; ///< empty for a plain register
    Bytes value;
};

/// The kind of a register and its power-up value.
struct Value {
    std::vector<Instance> instances; ///< at least one; all selectors have one length, and so have all values
    bool swapped = false;            ///< whether a write of the selector alone has its two words swapped
    bool keepsRequest = false;       ///< whether the requested value is kept beside the current one
};

// The kinds, for the rows of a register table.
[[nodiscard]] Value Word(std::uint32_t value);
[[nodiscard]] Value Record(const Words& fields);                     ///< several words, no padding
[[nodiscard]] Value Indexed(const std::vector<Words>& instances);    ///< selected by an index word, from 0 on
[[nodiscard]] Value Text(std::size_t length, std::string_view text); ///< bytes, padded with zeros
/// A word with the length of the text, then the text. The size includes the length word.
[[nodiscard]] Value PrefixedText(std::size_t size, std::string_view text);
/// Pairs of a selector, of any length, and its value.
[[nodiscard]] Value Selected(const std::vector<std::pair<Words, Words>>& instances);
/// Values selected by two words, row and column, which are swapped when written alone. Row by row from {0, 0} on.
[[nodiscard]] Value Table(std::uint32_t columns, const std::vector<Words>& entries);
/// A setting that keeps its requested value. The value applies as far as other settings allow.
[[nodiscard]] Value KeepingRequest(Value value);

/// The valid values of a word. A number out of range is clamped. An invalid code has the whole write rejected.
struct Limits {
    std::int64_t lowest = 0; ///< if negative, the word is signed
    std::int64_t highest = 0xFFFFFFFF;
    Words codes; ///< if not empty, the only valid values
};

[[nodiscard]] Limits Range(std::int64_t lowest, std::int64_t highest);
[[nodiscard]] Limits Codes(std::uint32_t first, std::uint32_t last);
[[nodiscard]] Limits Codes(const Words& codes);

/// Converts a word to the signed or unsigned number that it represents.
[[nodiscard]] std::int64_t Number(std::uint32_t word, const Limits& limits);
/// Clamps each word. False if one is an invalid code. Words without limits accept all values.
[[nodiscard]] bool Admit(const std::vector<Limits>& limits, Words& words);

/// One row of a camera's register table.
struct Register {
    std::string name;
    std::uint32_t address;
    Role role;
    Value powerUp;
    std::vector<Limits> limits = {}; ///< of each word
};

/// The size in bytes in the address space: selector and value.
[[nodiscard]] std::size_t SizeOf(const Register& entry);

} // namespace Simulation
