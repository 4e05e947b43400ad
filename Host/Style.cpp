#include "Host/Style.h"

#include "Common/Number.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>

namespace Host {

namespace {

std::string Environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string Paint(const char* code, const std::string& text) {
    static const bool wanted = IsStyled(STDOUT_FILENO);
    return wanted ? "\033[" + std::string(code) + "m" + text + "\033[0m" : text;
}

} // namespace

bool IsStyled(int stream) {
    const std::string terminal = Environment("TERM");
    return isatty(stream) == 1 && !terminal.empty() && terminal != "dumb" && Environment("NO_COLOR").empty();
}

std::size_t TerminalWidth() {
    winsize size{};
    if (isatty(STDOUT_FILENO) != 1) {
        return 0;
    }
    const auto wanted = Common::ParseWhole<std::size_t>(Environment("COLUMNS"));
    return wanted ? *wanted : ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::string Dim(const std::string& text) { return Paint("2", text); }
std::string Yellow(const std::string& text) { return Paint("33", text); }
std::string Green(const std::string& text) { return Paint("32", text); }
std::string Red(const std::string& text) { return Paint("31", text); }

} // namespace Host
