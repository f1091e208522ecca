#include <algorithm>
#include <cstdio>
#include <map>

#include "composer_bench_grids.h"
#include "composer_bench_options.h"
#include "composer_bench_rows.h"
#include "composer_bench_severe.h"
#include "composer_bench_words.h"

// Measures the composer on patterns and models, with the words kept for it and with those of the
// lexicon, beside a plain search.
namespace telarium {
namespace {

Problema AskedProblem(const BenchOptions& options) {
  const Pattern pattern = PatternNamed(options.fill);
  if (options.severe) return SevereProblem(pattern);
  return ProblemOf(pattern, ListVocabulary({options.cap, options.clued}));
}

void PrintFills(const BenchOptions& options) {
  const Problema problem = AskedProblem(options);
  std::printf("%s, %d slots\nseed outcome     thread ms   wall ms      steps\n",
              options.fill.c_str(), problem.Slot());
  Times times;
  ForEachSeed({options.firstSeed, options.seeds}, [&](std::uint64_t seed) {
    Limiti limits{.seme = seed, .lavoratori = options.workers};
    if (options.steps > 0) limits.passi = options.steps;
    const TimedFill timed = FillTimed(problem, limits, options.seconds);
    std::printf("%4d %-10s %11.2f %9.2f %10lld\n", static_cast<int>(seed), NameOf(timed.fill.esito),
                timed.threadMs, timed.wallMs, static_cast<long long>(timed.fill.passi));
    std::fflush(stdout);
    if (timed.fill.esito != Esito::Tempo) times.Add(timed.threadMs);
  });
  std::printf("%zu of %d answered, median / worst %s ms\n", times.Count(), options.seeds,
              Spread({times}).c_str());
}

std::vector<Row> AllRows() {
  std::vector<Row> rows;
  for (const auto& some :
       {FillRows(), RulesRows(), QualityRows(), ProofRows(), LookaheadRows(), ProcessRows()})
    rows.insert(rows.end(), some.begin(), some.end());
  return rows;
}

bool Asked(const Row& row, const std::vector<std::string>& rows) {
  return rows.empty() || std::any_of(rows.begin(), rows.end(), [&](const std::string& asked) {
           return asked == std::to_string(row.number) ||
                  (asked.find_first_not_of("0123456789") != std::string::npos &&
                   std::string(row.what).find(asked) != std::string::npos);
         });
}

void PrintTable(const BenchOptions& options) {
  std::vector<Row> rows = AllRows();
  std::erase_if(rows, [&](const Row& row) { return !Asked(row, options.rows); });
  std::stable_partition(rows.begin(), rows.end(), [](const Row& row) { return row.beforeOthers; });
  std::map<int, std::string> lines;
  for (const Row& row : rows) {
    std::fprintf(stderr, "%d. %s\n", row.number, row.what);
    const Figures figures = row.run({options.firstSeed, options.seeds});
    lines[row.number] = std::string("| ") + row.what + " | " + figures.plain + " | " +
                        figures.measured + " | " + row.wanted + " |";
    std::fprintf(stderr, "    %s\n", lines[row.number].c_str());
  }
  std::printf("\n| median / worst of %d seeds | plain, 3 seeds of 5 s | Telarium | wanted |\n",
              options.seeds);
  std::printf("|---|---|---|---|\n");
  for (const auto& [number, line] : lines)
    std::printf("%s\n", line.c_str());
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  const telarium::BenchOptions options = telarium::ParseOptions(argc, argv);
  if (options.fill.empty())
    telarium::PrintTable(options);
  else
    telarium::PrintFills(options);
}
