#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace Bench {

template <typename Number> Number Median(std::vector<Number> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The seconds per call, averaged over a batch.
template <typename Call> double Time(unsigned batch, Call& call) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    for (unsigned i = 0; i < batch; ++i) {
        call();
    }
    return std::chrono::duration<double>(Clock::now() - start).count() / batch;
}

} // namespace Bench
