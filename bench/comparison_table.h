#pragma once

#include <cstdio>
#include <map>
#include <span>
#include <string>

namespace telarium {

/// A row of a table that sets ours beside a plain way of the same semantics.
struct ComparisonRow {
  const char* what;
  const char* plain;  // name of the benchmark of the plain way; null where there is none
  const char* ours;
  int perIteration;  // how many of `what` an iteration does
  const char* wanted;
};

/// In what the times of a table are told.
struct TimeUnit {
  const char* name;
  double perMillisecond;
  int digits;  // behind the point
};

/// Prints the rows whose benchmarks ran, as MedianKeeper has them, and how many times ours is
/// quicker.
inline void PrintComparison(std::span<const ComparisonRow> rows,
                            const std::map<std::string, double>& medians, const TimeUnit& unit) {
  std::printf("\n| | plain, %s | Telarium, %s | ratio | wanted |\n|---|---|---|---|---|\n",
              unit.name, unit.name);
  for (const ComparisonRow& row : rows) {
    if (!medians.contains(row.ours)) continue;
    const auto time = [&](const char* name) {
      return medians.at(name) * unit.perMillisecond / row.perIteration;
    };
    if (row.plain && medians.contains(row.plain)) {
      std::printf("| %s | %.*f | %.*f | %.1f | %s |\n", row.what, unit.digits, time(row.plain),
                  unit.digits, time(row.ours), time(row.plain) / time(row.ours), row.wanted);
    } else {
      std::printf("| %s | | %.*f | | %s |\n", row.what, unit.digits, time(row.ours), row.wanted);
    }
  }
}

}  // namespace telarium
