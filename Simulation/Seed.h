#pragma once

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <string>

namespace Simulation {

/// What is wrong with a seed that a user gave, for the parsers of command lines; empty for a number of 64 bits.
inline std::string SeedFault(const std::string& text) {
    errno = 0;
    char* end = nullptr;
    static_cast<void>(std::strtoull(text.c_str(), &end, 0));
    const bool isNumber = !text.empty() && std::isdigit(static_cast<unsigned char>(text.front())) != 0;
    return isNumber && *end == '\0' && errno == 0 ? "" : "\"" + text + "\" is no seed; a number of 0 or more is wanted";
}

} // namespace Simulation
