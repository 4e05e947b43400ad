#pragma once

#include <chrono>

namespace Host {

/// While one lives, SIGINT and SIGTERM end nothing but are remembered, so that what runs can end in good order.
class Interrupts {
public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// Whether a signal came since the outermost one was made.
    [[nodiscard]] static bool Came();
    /// Waits, but not beyond a signal.
    static void Sleep(std::chrono::milliseconds time);
};

} // namespace Host
