#include "Style.h"

#include <unistd.h>

#include <cstdlib>

namespace Host {

namespace {

bool WantsColour() {
    const char* const refused = std::getenv("NO_COLOR"); // any value but an empty one counts
    return isatty(STDOUT_FILENO) == 1 && (refused == nullptr || *refused == '\0');
}

std::string Paint(const char* code, const std::string& text) {
    static const bool wanted = WantsColour();
    return wanted ? "\033[" + std::string(code) + "m" + text + "\033[0m" : text;
}

} // namespace

std::string Dim(const std::string& text) { return Paint("2", text); }
std::string Yellow(const std::string& text) { return Paint("33", text); }
std::string Green(const std::string& text) { return Paint("32", text); }
std::string Red(const std::string& text) { return Paint("31", text); }

} // namespace Host
