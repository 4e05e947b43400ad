#pragma once

#include <cstdint>
#include <string>
#include <string_view>
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

/// The kind of a register and what it holds when the camera is switched on.
struct Value {
    /// Bytes of the selector in front of the value when one address serves several instances, else 0.
    std::size_t selectorBytes;
    /// The power-up bytes: one block of a plain register, one block per instance of an indexed one.
    std::vector<Bytes> instances;
};

// The kinds, for the rows of a register table.
[[nodiscard]] Value Word(std::uint32_t value);
[[nodiscard]] Value Record(const Words& fields);                        ///< several words, no padding
[[nodiscard]] Value Indexed(const std::vector<Words>& instances);       ///< behind an index word, first is index 0
[[nodiscard]] Value Text(std::size_t length, std::string_view text);    ///< bytes from the first on
[[nodiscard]] Value LedText(std::size_t length, std::string_view text); ///< a word (the text's size), then the text

/// One row of a camera's register table.
struct Register {
    std::string name;
    std::uint32_t address;
    Role role;
    Value powerUp;
};

} // namespace Simulation
