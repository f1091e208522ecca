#pragma once

#include <string>
#include <vector>

namespace telarium {

/// What running a program cost.
struct ProcessCost {
  double milliseconds = 0;   // wall clock, median of the runs
  double peakMebibytes = 0;  // largest of the runs; an upper bound, see MeasureProcess
  bool succeeded = true;
};

/// Runs a program so many times, its output thrown away. A child's peak memory counts from this
/// process's own size at the moment of its start, so measure before allocating much.
ProcessCost MeasureProcess(const std::vector<std::string>& command, int runs);

}  // namespace telarium
