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

/// Who changes a register, and what becomes of it when settings are loaded or the camera is restarted.
enum class Role {
    Fixed,       ///< identity: nobody changes it
    Status,      ///< what the camera reports, and its internal state: hosts do not change it
    Setting,     ///< a settings set saves and loads it
    NonVolatile, ///< permanent memory beside the settings sets
    Volatile,    ///< commands, and what a restart resets
    Channel,     ///< the control channel's: set by a device on the network, without meaning for any other camera
};

/// Whether the camera ignores what a host writes.
[[nodiscard]] constexpr bool IsReadOnly(Role role) {
    return role == Role::Fixed || role == Role::Status || role == Role::Channel;
}

/// One of the values behind an address, and the selector that leads to it.
struct Instance {
    Bytes selector; ///< empty for a plain register
    Bytes value;
};

/// The kind of a register and what it holds when the camera is switched on.
struct Value {
    std::vector<Instance> instances; ///< at least one; their selectors are of one length, and so are their values
    bool swapped = false;            ///< whether the two words of a selector are swapped when they are written alone
    bool keepsRequest = false;       ///< whether the requested value is kept beside the one that applies
};

// The kinds, for the rows of a register table.
[[nodiscard]] Value Word(std::uint32_t value);
[[nodiscard]] Value Record(const Words& fields);                     ///< several words, no padding
[[nodiscard]] Value Indexed(const std::vector<Words>& instances);    ///< behind an index word, first is index 0
[[nodiscard]] Value Text(std::size_t length, std::string_view text); ///< bytes, padded with zeros
/// A text behind a word with its length, which counts into the size of the register.
[[nodiscard]] Value PrefixedText(std::size_t size, std::string_view text);
/// Values behind selectors of any length, each a selector and its value.
[[nodiscard]] Value Selected(const std::vector<std::pair<Words, Words>>& instances);
/// Values behind two words, row and column, swapped when they are written alone; row by row from {0, 0} on.
[[nodiscard]] Value Table(std::uint32_t columns, const std::vector<Words>& entries);
/// The same, of a setting whose requested value applies as far as other settings allow, and again when they allow it.
[[nodiscard]] Value KeepingRequest(Value value);

/// What a word of a register admits: a number is moved to the nearest admitted one, a code that is not admitted has the
/// whole write rejected.
struct Limits {
    std::int64_t lowest = 0; ///< a negative one makes the word a signed one
    std::int64_t highest = 0xFFFFFFFF;
    Words codes; ///< not empty: these alone are admitted
};

[[nodiscard]] Limits Range(std::int64_t lowest, std::int64_t highest);
[[nodiscard]] Limits Codes(std::uint32_t first, std::uint32_t last);
[[nodiscard]] Limits Codes(const Words& codes);

/// The word as the number that it stands for.
[[nodiscard]] std::int64_t Number(std::uint32_t word, const Limits& limits);
/// Moves each word to the nearest admitted number. False if one is a code that is not admitted. Words beyond the limits
/// given admit everything.
[[nodiscard]] bool Admit(const std::vector<Limits>& limits, Words& words);

/// One row of a camera's register table.
struct Register {
    std::string name;
    std::uint32_t address;
    Role role;
    Value powerUp;
    std::vector<Limits> limits = {}; ///< of each word
};

/// How many bytes it takes in the address space: its selector, and the value behind that.
[[nodiscard]] std::size_t SizeOf(const Register& entry);

} // namespace Simulation
