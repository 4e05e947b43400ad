#include "Host/Channel/DeferredTermination.h"

namespace Host {

namespace {

volatile std::sig_atomic_t due = 0; ///< the pending signal
bool isSuspended = false;

void Defer(int signal) { due = signal; }

} // namespace

DeferredTermination::DeferredTermination() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_DFL) { // ignored signals stay ignored
            before[signal] = action;
            action.sa_handler = Defer;
            action.sa_flags = static_cast<int>(SA_RESETHAND); // no SA_RESTART: interrupts the wait for a line
            sigaction(signal, &action, nullptr);
        }
    }
}

DeferredTermination::~DeferredTermination() {
    for (const auto& [signal, action] : before) {
        struct sigaction now {};
        sigaction(signal, nullptr, &now);
        if (now.sa_handler == Defer || now.sa_handler == SIG_DFL) { // else a shell has set its own since
            sigaction(signal, &action, nullptr);
        }
    }
    if (due != 0) {
        static_cast<void>(raise(due));
    }
}

bool DeferredTermination::IsDue() { return due != 0 && !isSuspended; }

DeferredTermination::Suspension::Suspension() { isSuspended = true; }

DeferredTermination::Suspension::~Suspension() { isSuspended = false; }

} // namespace Host
