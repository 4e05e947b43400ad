#pragma once

#include <chrono>
#include <thread>

namespace Host {

constexpr int busyAttempts = 6;                    ///< attempts of an access
constexpr std::chrono::milliseconds busyPause{20}; ///< time between attempts

/// Makes an access, and repeats it while the camera refuses it as busy, for a tenth of a second.
/// @return the last result
template <typename Attempt, typename IsBusy> auto RetryWhileBusy(const Attempt& attempt, const IsBusy& isBusy) {
    for (int made = 1;; ++made) {
        auto result = attempt();
        if (made == busyAttempts || !isBusy(result)) {
            return result;
        }
        std::this_thread::sleep_for(busyPause);
    }
}

} // namespace Host
