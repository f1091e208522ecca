#include <algorithm>

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

// The highest floor that is met, and whether all were proved.
struct Floors {
  Times times;
  int highest = 0;
  int proved = 0;
};

Floors MeasureFloor(const NamedProblem& named, const Seeds& seeds, double seconds) {
  Floors floors;
  ForEachSeed(seeds, [&](std::uint64_t seed) {
    const Deadline deadline(seconds);
    const Stopwatch watch;
    const Soglia found = TrovaSoglia(named.problem, {.seme = seed, .ferma = deadline.Token()});
    floors.times.Add(watch.ThreadMs());
    Demand(found.riempimento.esito == Esito::Riempito, named.name + " has no floor");
    DemandSound(ConMinimo(named.problem, found.fino), found.riempimento.lettere);
    floors.highest = std::max(floors.highest, found.fino);
    floors.proved += found.provata ? 1 : 0;
  });
  Note(named.name + ": " + std::to_string(floors.highest) + " in " + Spread({floors.times}) +
       " ms, " + std::to_string(floors.proved) + " proved");
  return floors;
}

Figures MeasureFloors(const Seeds& seeds, const std::vector<std::string>& names, double seconds) {
  std::vector<Times> grids;
  std::string plain;
  int proved = 0;
  for (const std::string& name : names) {
    const NamedProblem named{name, SevereProblem(PatternNamed(name))};
    const Floors floors = MeasureFloor(named, seeds, seconds);
    grids.push_back(floors.times);
    proved += floors.proved;
    if (plain.empty()) plain = MeasurePlainly(ConMinimo(named.problem, floors.highest));
  }
  return {Spread(grids) + " ms, " + std::to_string(proved) + " of " +
              std::to_string(seeds.many * static_cast<int>(names.size())) + " proved",
          plain};
}

}  // namespace

std::vector<Row> RulesRows() {
  return {
      {3, "the same under `severe`, every entry with a clue", "5 / 20 ms", MeasureFills},
      {4, "`--ottimo` under `severe` with clues: lowest score proved, 13x13, 21x21, 26x20",
       "500 / 2,000 ms",
       [](const Seeds& seeds) {
         return MeasureFloors(seeds, {"model6", "r21_b", "model12"}, 60);
       }},
      {16, "the same on a 21x21 and a 26x20 of 16 % black, broken off after 10 s", "none",
       [](const Seeds& seeds) {
         return MeasureFloors(seeds, {"r21_a", "r26_a"}, 10);
       }},
  };
}

}  // namespace telarium
