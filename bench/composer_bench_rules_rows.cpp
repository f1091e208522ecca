#include "composer/floor.h"
#include "composer_bench_grids.h"
#include "composer_bench_plain.h"
#include "composer_bench_rows.h"
#include "composer_bench_severe.h"

// Fills by the strict rules, with the words of the lexicon, and the best worst word of a grid.
namespace telarium {
namespace {

Figures MeasureFills(const Seeds& seeds) {
  std::vector<NamedProblem> problems;
  for (int number = 1; number <= NumModels; ++number)
    problems.push_back({ModelName(number), SevereProblem(PatternNamed(ModelName(number)))});
  return {MeasureAnswers(problems, seeds, Esito::Riempito),
          MeasurePlainly(problems.front().problem)};
}

Times MeasureFloor(const NamedProblem& named, const Seeds& seeds, int& floor) {
  Times times;
  int proved = 0;
  ForEachSeed(seeds, [&](std::uint64_t seed) {
    const Stopwatch watch;
    const Soglia found = TrovaSoglia(named.problem, {.seme = seed});
    times.Add(watch.ThreadMs());
    Demand(found.riempimento.esito == Esito::Riempito, named.name + " has no floor");
    DemandSound(ConMinimo(named.problem, found.fino), found.riempimento.lettere);
    proved += found.provata ? 1 : 0;
    floor = found.fino;
  });
  Note(named.name + ": " + std::to_string(floor) + " in " + Spread({times}) + " ms, " +
       std::to_string(proved) + " proved");
  return times;
}

Figures MeasureFloors(const Seeds& seeds) {
  std::vector<Times> grids;
  std::string plain;
  for (const char* name : {"model6", "r21_a", "r21_b", "model12", "r26_a"}) {
    const NamedProblem named{name, SevereProblem(PatternNamed(name))};
    int floor = 0;
    grids.push_back(MeasureFloor(named, seeds, floor));
    if (plain.empty()) plain = MeasurePlainly(ConMinimo(named.problem, floor));
  }
  return {Spread(grids) + " ms", plain};
}

}  // namespace

std::vector<Row> RulesRows() {
  return {
      {3, "the same under `severe`, every entry with a clue", "5 / 20 ms", MeasureFills},
      {4, "`--ottimo` under `severe` with clues: lowest score proved, 13x13, 21x21, 26x20",
       "500 / 2,000 ms", MeasureFloors},
  };
}

}  // namespace telarium
