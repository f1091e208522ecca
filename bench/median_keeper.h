#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace telarium {

/// Keeps the median of each benchmark, in milliseconds, besides printing the ordinary lines.
class MedianKeeper : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") {
        medians[run.run_name.function_name] = run.GetAdjustedRealTime();
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

  std::map<std::string, double> medians;
};

/// Registers a benchmark whose median of five repetitions counts.
template <class... Arguments>
void Register(const char* name, Arguments&&... arguments) {
  benchmark::RegisterBenchmark(name, std::forward<Arguments>(arguments)...)
      ->Unit(benchmark::kMillisecond)
      ->Repetitions(5)
      ->ReportAggregatesOnly(true)
      ->UseRealTime();
}

}  // namespace telarium
