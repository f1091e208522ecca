#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "composer/composer.h"
#include "composer_bench_measure.h"

// The rows of the table of figures.
namespace telarium {

/// With which seeds a row is measured.
struct Seeds {
  int first = 1;
  int many = 20;
};

struct Figures {
  std::string measured;
  std::string plain;  // of the plain search beside it
};

struct Row {
  int number;
  const char* what;
  const char* wanted;
  std::function<Figures(const Seeds&)> run;
  /// It measures the memory of a process, which is not to be smaller than this one is by then.
  bool beforeOthers = false;
};

std::vector<Row> FillRows();
std::vector<Row> RulesRows();
std::vector<Row> QualityRows();
std::vector<Row> ProofRows();
std::vector<Row> LookaheadRows();
std::vector<Row> ProcessRows();

/// A problem and what it is called.
struct NamedProblem {
  std::string name;
  Problema problem;
};

/// Calls `work` with each seed.
void ForEachSeed(const Seeds& seeds, const std::function<void(std::uint64_t)>& work);

/// The times of answers of the expected kind to each problem, as a cell of the table; how many had
/// another answer within a minute is told with them.
std::string MeasureAnswers(const std::vector<NamedProblem>& problems, const Seeds& seeds,
                           Esito expected);

/// What the plain search reaches on a problem: three seeds of five seconds.
std::string MeasurePlainly(const Problema& problem);

}  // namespace telarium
