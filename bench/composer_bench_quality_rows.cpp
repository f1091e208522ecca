#include "composer/improvement.h"
#include "composer_bench_grids.h"
#include "composer_bench_plain.h"
#include "composer_bench_rows.h"
#include "composer_bench_words.h"

// What a second of improvement makes of a first fill.
namespace telarium {
namespace {

constexpr double Milliseconds = 1000;
constexpr std::int64_t Endless = 1'000'000'000;  // windows

// How many of a hundred entries stand in the best third of their length. The kit's entries of two
// letters are in no list that would have a third.
double BestThirdOf(const Problema& problem, const std::string& letters) {
  int entries = 0, best = 0;
  for (int slot = 0; slot < problem.Slot(); ++slot) {
    const std::string word = Maschera(problem, slot, letters);
    if (word.size() == MinLunghezzaVoce) continue;
    ++entries;
    const auto number = problem.vocabolario->Cerca(word);
    if (number && problem.vocabolario->Pregio(*number) > BestThird) ++best;
  }
  return 100.0 * best / entries;
}

std::string Improved(const Problema& problem, const std::string& letters, std::uint64_t seed,
                     std::int64_t& windows) {
  std::stop_source enough;
  const Limiti limits{.seme = seed, .ferma = enough.get_token()};
  const Stopwatch watch;
  const auto look = [&](std::int64_t done, const std::string&) {
    windows = done;
    if (watch.ThreadMs() >= Milliseconds) enough.request_stop();
  };
  const Riempimento better = Migliora(problem, letters, Endless, limits, look);
  DemandSound(problem, better.lettere);
  return better.lettere;
}

Problema CluedProblem(const std::string& name) {
  Problema problem = ProblemOf(PatternNamed(name), ListVocabulary({.clued = true}));
  problem.soloDefinite = true;
  return problem;
}

// The mean share over all seeds and some grids of a size.
std::string MeasureImproved(const std::vector<std::string>& names, const Seeds& seeds) {
  double sum = 0;
  int fills = 0;
  for (const std::string& name : names) {
    const Problema problem = CluedProblem(name);
    Times before, after, windows;
    ForEachSeed(seeds, [&](std::uint64_t seed) {
      const TimedFill first = FillTimed(problem, {.seme = seed});
      Demand(first.fill.esito == Esito::Riempito, name + " is not filled");
      std::int64_t many = 0;
      before.Add(BestThirdOf(problem, first.fill.lettere));
      after.Add(BestThirdOf(problem, Improved(problem, first.fill.lettere, seed, many)));
      windows.Add(static_cast<double>(many));
      sum += after.Last();
      ++fills;
    });
    Note(name + ": best third " + Told(before.Median()) + " %, then " + Told(after.Median()) +
         " %, least " + Told(after.Least()) + " %, " + Told(windows.Median()) + " windows");
  }
  char text[16];
  std::snprintf(text, sizeof text, "%.1f", sum / fills);
  return text;
}

std::string PlainShare() {
  const Problema problem = CluedProblem("model6");
  const Riempimento plain = FillPlainly(problem, 1, 5);
  if (plain.esito != Esito::Riempito) return "none";
  return Told(BestThirdOf(problem, plain.lettere)) + " %";
}

Figures MeasureQuality(const Seeds& seeds) {
  return {MeasureImproved({"g1", "model6"}, seeds) + " / " + MeasureImproved({"model12"}, seeds) +
              " / " + MeasureImproved({"r53_b18"}, seeds) + " %",
          PlainShare()};
}

}  // namespace

std::vector<Row> QualityRows() {
  return {{9,
           "1 s of improvement, clued words only: entries in the best third of their length, 13x13 "
           "/ 26x20 / 53x30",
           "95 / 93 / 84 %", MeasureQuality}};
}

}  // namespace telarium
