#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace telarium {

/// What the bench is asked to do.
struct BenchOptions {
  std::vector<std::string> rows;  // of the table, by number or part of their text; none: all
  int seeds = 20;
  int firstSeed = 1;

  // One pattern instead of the table, each seed told by itself.
  std::string fill;
  int cap = 0;
  bool clued = false;
  bool severe = false;
  std::int64_t steps = 0;  // 0: those of Limiti
  int workers = 1;
  double seconds = 0;  // 0: never broken off
};

/// Ends the program, telling its usage, when the command line is not understood.
BenchOptions ParseOptions(int count, char** words);

}  // namespace telarium
