#pragma once

#include <string>

namespace Host {

/// Whether colour, a progress bar and the like may go to a stream of this program: to a terminal alone, of which TERM
/// is known and not "dumb", and not with NO_COLOR.
[[nodiscard]] bool IsStyled(int stream);

// Colour on standard output, if that is styled; else the text as it is.
[[nodiscard]] std::string Dim(const std::string& text);
[[nodiscard]] std::string Yellow(const std::string& text);
[[nodiscard]] std::string Green(const std::string& text);
[[nodiscard]] std::string Red(const std::string& text);

} // namespace Host
