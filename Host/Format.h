#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace Host {

/// What went over the port: a text in quotes where the bytes are one, else their words.
[[nodiscard]] std::string FormatBytes(std::span<const std::uint8_t> bytes);

/// "12.3 s"
[[nodiscard]] std::string PrintSeconds(std::chrono::milliseconds time);

/// An escaped text, filled up with blanks to the width, in columns of a terminal.
[[nodiscard]] std::string Pad(std::string text, std::size_t width);

} // namespace Host
