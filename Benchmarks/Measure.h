#pragma once

// How every row is measured: calls are timed in batches of some microseconds. The result of a repetition is its median
// batch, so that interrupted batches do not count.

#include "Benchmarks/Timing.h"
#include "Tests/Support/Allocations.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

namespace Bench {

/// A running total, such as port accesses.
using Counter = std::function<std::uint64_t()>;

/// Runs before each batch and is not measured.
using Preparation = std::function<void()>;

/// Measures a call: time, port accesses and allocations. A call that needs a preparation is timed singly, including
/// about 25 ns for the clock.
template <typename Call>
void Measure(benchmark::State& state, Call call, const Counter& accesses, const Preparation& prepare) {
    constexpr double batchTime = 10e-6;
    const unsigned batch = prepare ? 1 : static_cast<unsigned>(std::max(1.0, batchTime / Time(100, call)));
    std::vector<double> times;
    times.reserve(static_cast<std::size_t>(state.max_iterations));
    for ([[maybe_unused]] auto unused : state) {
        if (prepare) {
            prepare();
        }
        times.push_back(Time(batch, call));
    }
    state.SetIterationTime(Median(times) * static_cast<double>(state.iterations()));

    if (prepare) {
        prepare();
    }
    const std::uint64_t accessesBefore = accesses(), allocationsBefore = Test::Allocations();
    call();
    state.counters["allocations"] = static_cast<double>(Test::Allocations() - allocationsBefore);
    state.counters["accesses"] = static_cast<double>(accesses() - accessesBefore);
}

} // namespace Bench
