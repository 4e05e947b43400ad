#pragma once

#include "Benchmarks/Measure.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Bench {

/// An operation to be measured. Its time may be limited to a multiple of another row's.
struct Row {
    std::string name;
    const char* peer = nullptr;
    double limit = 0; ///< 0: none
};

/// The results of a row: medians of the repetitions.
struct Result {
    double nanoseconds = 0, accesses = 0, allocations = 0;
};

/// Rows and their results. Rows are repeated in random order, so that a temporary disturbance affects all of them.
class Table {
public:
    explicit Table(Counter portAccesses) : accesses(std::move(portAccesses)) {}

    template <typename Call> void Add(Row row, Call call, Preparation prepare = {}) {
        const auto measure = [this, call, prepare = std::move(prepare)](benchmark::State& state) {
            Measure(state, call, accesses, prepare);
        };
        benchmark::RegisterBenchmark(row.name.c_str(), measure)
            ->Iterations(batches)
            ->Repetitions(repetitions)
            ->Unit(benchmark::kNanosecond)
            ->UseManualTime();
        rows.push_back(std::move(row));
    }

    /// Measures all rows.
    void Run();

    [[nodiscard]] const std::vector<Row>& Rows() const { return rows; }

    /// The results of the row. @throws std::out_of_range
    [[nodiscard]] const Result& At(const std::string& name) const { return results.at(name); }

    static constexpr int batches = 300, repetitions = 25;

private:
    Counter accesses;
    std::vector<Row> rows;
    std::map<std::string, Result> results;
};

} // namespace Bench
