#include "Host/Interrupts.h"

#include <algorithm>
#include <thread>

namespace Host {

namespace {

constexpr int watched[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t received = 0; ///< the last signal
int alive = 0;
struct sigaction before[std::size(watched)];

} // namespace

Interrupts::Interrupts() {
    if (alive++ != 0) {
        return;
    }
    received = 0;
    struct sigaction action {};
    action.sa_handler = [](int which) { received = which; };
    action.sa_flags = SA_RESTART; // output is not interrupted
    for (std::size_t i = 0; i < std::size(watched); ++i) {
        sigaction(watched[i], nullptr, &before[i]);
        const bool nohup = watched[i] == SIGHUP && before[i].sa_handler == SIG_IGN;
        if (!nohup) { // keep running when the terminal closes
            sigaction(watched[i], &action, nullptr);
        }
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

bool Interrupts::Received() { return received != 0; }

bool Interrupts::ReceivedTermination() { return Received() && received != SIGINT; }

void Interrupts::Sleep(std::chrono::milliseconds time) {
    constexpr std::chrono::milliseconds most{50}; // a signal may come just before each sleep
    for (; time.count() > 0 && !Received(); time -= most) {
        std::this_thread::sleep_for(std::min(time, most));
    }
}

IgnoredPipeSignal::IgnoredPipeSignal() {
    struct sigaction action {};
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, &before);
}

IgnoredPipeSignal::~IgnoredPipeSignal() { sigaction(SIGPIPE, &before, nullptr); }

} // namespace Host
