#include "Host/Channel/DeferredTermination.h"

namespace Host {

namespace {

volatile std::sig_atomic_t due = 0; ///< the signal that came

} // namespace

DeferredTermination::DeferredTermination() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_DFL) { // what is ignored stays so
            before[signal] = action;
            action.sa_handler = [](int which) { due = which; };
            action.sa_flags = static_cast<int>(SA_RESETHAND); // no SA_RESTART: the waiting for a line ends
            sigaction(signal, &action, nullptr);
        }
    }
}

DeferredTermination::~DeferredTermination() {
    for (const auto& [signal, action] : before) {
        sigaction(signal, &action, nullptr);
    }
    if (due != 0) {
        static_cast<void>(raise(due));
    }
}

bool DeferredTermination::IsDue() { return due != 0; }

} // namespace Host
