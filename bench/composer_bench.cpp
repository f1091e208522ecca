#include <cstdio>

#include "composer_bench_grids.h"
#include "composer_bench_measure.h"
#include "composer_bench_options.h"
#include "composer_bench_words.h"

// Measures the composer on patterns and models, with the words kept for it.
namespace telarium {
namespace {

void PrintFills(const BenchOptions& options) {
  const Problema problem =
      ProblemOf(PatternNamed(options.fill), ListVocabulary({options.cap, options.clued}));
  std::printf("%s, %d slots\nseed outcome     thread ms   wall ms      steps\n",
              options.fill.c_str(), problem.Slot());
  Times times;
  for (int k = 0; k < options.seeds; ++k) {
    Limiti limits{.seme = static_cast<std::uint64_t>(options.firstSeed + k),
                  .lavoratori = options.workers};
    if (options.steps > 0) limits.passi = options.steps;
    const TimedFill timed = FillTimed(problem, limits, options.seconds);
    std::printf("%4d %-10s %11.2f %9.2f %10lld\n", options.firstSeed + k, NameOf(timed.fill.esito),
                timed.threadMs, timed.wallMs, static_cast<long long>(timed.fill.passi));
    std::fflush(stdout);
    if (timed.fill.esito != Esito::Tempo) times.Add(timed.threadMs);
  }
  if (times.Empty()) return;
  std::printf("%zu of %d answered, median %s, worst %s ms\n", times.Count(), options.seeds,
              Told(times.Median()).c_str(), Told(times.Worst()).c_str());
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  telarium::PrintFills(telarium::ParseOptions(argc, argv));
}
