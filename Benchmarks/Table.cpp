#include "Benchmarks/Table.h"

namespace Bench {

namespace {

/// Collects the repetitions of every row, and prints only errors.
class Collector final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                GetErrorStream() << run.run_name.function_name << ": " << run.error_message << '\n';
            } else if (run.run_type == Run::RT_Iteration) {
                repetitions[run.run_name.function_name].push_back(ResultOf(run));
            }
        }
    }

    [[nodiscard]] std::map<std::string, Result> Medians() const {
        std::map<std::string, Result> medians;
        for (const auto& [name, results] : repetitions) {
            medians[name] = {Of(results, &Result::nanoseconds), Of(results, &Result::accesses),
                             Of(results, &Result::allocations)};
        }
        return medians;
    }

private:
    static Result ResultOf(const Run& run) {
        return {run.GetAdjustedRealTime(), run.counters.at("accesses").value, run.counters.at("allocations").value};
    }

    static double Of(const std::vector<Result>& results, double Result::*field) {
        std::vector<double> values;
        values.reserve(results.size());
        for (const Result& result : results) {
            values.push_back(result.*field);
        }
        return Median(values);
    }

    std::map<std::string, std::vector<Result>> repetitions;
};

} // namespace

void Table::Run() {
    char program[] = "benchmark", interleaving[] = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program, interleaving, nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    results = collector.Medians();
}

} // namespace Bench
