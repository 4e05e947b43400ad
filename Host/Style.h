#pragma once

#include <cstddef>
#include <string>

namespace Host {

/// Whether a stream may show colour, a progress bar and the like: only a terminal, with TERM set and not "dumb", and
/// without NO_COLOR.
[[nodiscard]] bool IsStyled(int stream);

// Coloured text for standard output if it is styled, else the text unchanged.
[[nodiscard]] std::string Dim(const std::string& text);
[[nodiscard]] std::string Yellow(const std::string& text);
[[nodiscard]] std::string Green(const std::string& text);
[[nodiscard]] std::string Red(const std::string& text);

/// The columns of the terminal that standard output is, or 0 if it is none. COLUMNS overrides them.
[[nodiscard]] std::size_t TerminalWidth();

} // namespace Host
