#include "composer_bench_grids.h"
#include "composer_bench_rows.h"
#include "composer_bench_words.h"

// First fills with the words of the list.
namespace telarium {
namespace {

using Names = std::vector<std::string>;

Names AllModels() {
  Names names;
  for (int number = 1; number <= NumModels; ++number)
    names.push_back(ModelName(number));
  return names;
}

std::vector<NamedProblem> ProblemsOf(const Names& names, const WordChoice& words) {
  const auto vocabulary = ListVocabulary(words);
  std::vector<NamedProblem> problems;
  for (const std::string& name : names)
    problems.push_back({name, ProblemOf(PatternNamed(name), vocabulary)});
  return problems;
}

// A row of fills; the plain search has the first of its grids.
Row Fills(int number, const char* what, const char* wanted, const Names& names,
          const WordChoice& words) {
  return {number, what, wanted, [=](const Seeds& seeds) {
            const auto problems = ProblemsOf(names, words);
            return Figures{MeasureAnswers(problems, seeds, Esito::Riempito),
                           MeasurePlainly(problems.front().problem)};
          }};
}

// The same answer of so many workers, by the wall clock.
Times MeasureWorkers(const NamedProblem& named, const Seeds& seeds, int workers,
                     std::vector<std::string>& letters) {
  Times times;
  ForEachSeed(seeds, [&](std::uint64_t seed) {
    const TimedFill timed = FillTimed(named.problem, {.seme = seed, .lavoratori = workers});
    times.Add(timed.wallMs);
    letters.push_back(timed.fill.lettere);
  });
  return times;
}

Figures CompareWorkers(const Seeds& seeds) {
  std::vector<Times> one, two;
  const auto problems = ProblemsOf({"g2", "g4", "g5"}, {.cap = 120'000});
  for (const NamedProblem& named : problems) {
    std::vector<std::string> alone, together;
    one.push_back(MeasureWorkers(named, seeds, 1, alone));
    two.push_back(MeasureWorkers(named, seeds, 2, together));
    Demand(alone == together, "other fills with two workers in " + named.name);
    Note(named.name + ": " + Spread({one.back()}) + " ms, with two " + Spread({two.back()}));
  }
  return {Spread(one) + " ms alone, " + Spread(two) + " ms with two",
          MeasurePlainly(problems.front().problem)};
}

}  // namespace

std::vector<Row> FillRows() {
  const WordChoice all, clued = {.clued = true}, cut = {.cap = 120'000};
  const Names hard = {"g4", "g5"};
  return {
      Fills(1, "first fill of the twelve models, all words", "3 / 15 ms", AllModels(), all),
      Fills(2, "the same, every entry with a clue, two letters from the kit", "3 / 10 ms",
            AllModels(), clued),
      Fills(5, "15x15 with 14 % black, 21x21, 26x20 in free patterns", "8 / 15 ms",
            {"d15_b", "r21_a", "r21_b", "r26_a", "r26_b"}, all),
      Fills(6, "three 53x30 of 17 to 20 % black, some 500 slots", "50 / 100 ms",
            {"r53_a17", "r53_b18", "r53_c20"}, all),
      Fills(7, "a 13x13 lattice with runs of 13, a dense 9x9 of 7 % black", "15 / 100 ms", hard,
            all),
      Fills(8, "the same with the 120,000 commonest words", "300 / 1,500 ms", hard, cut),
      {15, "hard ones by two workers, wall time: 16x13, lattice, 9x9, 120,000 words", "by how much",
       CompareWorkers},
  };
}

}  // namespace telarium
