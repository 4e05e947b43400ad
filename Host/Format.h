#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace Host {

/// What went over the port: a text in quotes where the bytes are one, else their words.
[[nodiscard]] std::string FormatBytes(std::span<const std::uint8_t> bytes);

/// "12.3 s"
[[nodiscard]] std::string PrintSeconds(std::chrono::milliseconds time);

/// An escaped text, filled up with blanks to the width, in columns of a terminal.
[[nodiscard]] std::string Pad(std::string text, std::size_t width);

/// The lines of a text that has a number of columns, broken after a blank, comma, bar or underscore if there is one.
[[nodiscard]] std::vector<std::string> Wrap(std::string text, std::size_t width);

} // namespace Host
