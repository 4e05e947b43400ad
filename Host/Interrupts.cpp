#include "Interrupts.h"

#include <csignal>
#include <ctime>

namespace Host {

namespace {

constexpr int watched[] = {SIGINT, SIGTERM};

volatile std::sig_atomic_t came = 0;
int alive = 0;
struct sigaction before[std::size(watched)];

} // namespace

Interrupts::Interrupts() {
    if (alive++ != 0) {
        return;
    }
    came = 0;
    struct sigaction action {};
    action.sa_handler = [](int) { came = 1; };
    action.sa_flags = SA_RESTART; // a line that is being printed is printed
    for (std::size_t i = 0; i < std::size(watched); ++i) {
        sigaction(watched[i], &action, &before[i]);
    }
}

Interrupts::~Interrupts() {
    if (--alive != 0) {
        return;
    }
    for (std::size_t i = 0; i < std::size(watched); ++i) {
        sigaction(watched[i], &before[i], nullptr);
    }
}

bool Interrupts::Came() { return came != 0; }

void Interrupts::Sleep(std::chrono::milliseconds time) {
    if (!Came()) {
        const timespec pause{time.count() / 1000, time.count() % 1000 * 1000000};
        nanosleep(&pause, nullptr);
    }
}

} // namespace Host
