#include "Host/Progress.h"

#include "Host/Style.h"

#include <unistd.h>

#include <iostream>

namespace Host {

Progress::Progress(std::size_t totalSteps) : total(totalSteps), shown(IsStyled(STDERR_FILENO)) {}

Progress::~Progress() {
    if (shown) {
        std::cerr << "\r\033[K" << std::flush;
    }
}

void Progress::Step(const std::string& name) {
    const std::size_t width = 40;
    const std::size_t filled = width * done++ / total;
    if (shown) {
        std::cerr << "\r[" << std::string(filled, '#') << std::string(width - filled, ' ') << "] " << name << "\033[K"
                  << std::flush;
    }
}

} // namespace Host
