#pragma once

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

/// Whether a register belongs to what a settings set saves and loads.
enum class Role {
    Setting,
    Kept, ///< identity, network, commands, measurements: no settings set touches it
};

/// One of the values behind an address, and the selector that leads to it.
struct Instance {
    Bytes selector; ///< empty for a plain register
    Bytes value;
};

/// The kind of a register and what it holds when the camera is switched on.
struct Value {
    std::vector<Instance> instances; ///< at least one; their selectors are of one length, and so are their values
    bool exchanged = false;          ///< whether the two words of a selector change places when they are written alone
};

// The kinds, for the rows of a register table.
[[nodiscard]] Value Word(std::uint32_t value);
[[nodiscard]] Value Record(const Words& fields);                        ///< several words, no padding
[[nodiscard]] Value Indexed(const std::vector<Words>& instances);       ///< behind an index word, first is index 0
[[nodiscard]] Value Text(std::size_t length, std::string_view text);    ///< bytes from the first on
[[nodiscard]] Value LedText(std::size_t length, std::string_view text); ///< a word (the text's size), then the text
/// Values behind selectors of any length, each a selector and its value.
[[nodiscard]] Value Selected(const std::vector<std::pair<Words, Words>>& instances);
/// Values behind two words, row and column, exchanged when they are written alone; row by row from {0, 0} on.
[[nodiscard]] Value Table(std::uint32_t columns, const std::vector<Words>& entries);

/// One row of a camera's register table.
struct Register {
    std::string name;
    std::uint32_t address;
    Role role;
    Value powerUp;
};

} // namespace Simulation
