#include "composer_bench_rows.h"

#include "composer_bench_plain.h"

namespace telarium {
namespace {

constexpr double SecondsForAnAnswer = 60;
constexpr int PlainSeeds = 3;
constexpr double PlainSeconds = 5;

// Behind the times: how many of the answers were others.
std::string Share(std::size_t answered, std::size_t asked) {
  if (answered == asked) return "";
  return ", " + std::to_string(answered) + " of " + std::to_string(asked);
}

}  // namespace

void ForEachSeed(const Seeds& seeds, const std::function<void(std::uint64_t)>& work) {
  for (int k = 0; k < seeds.many; ++k)
    work(static_cast<std::uint64_t>(seeds.first + k));
}

std::string MeasureAnswers(const std::vector<NamedProblem>& problems, const Seeds& seeds,
                           Esito expected) {
  std::vector<Times> grids;
  std::size_t answered = 0, asked = 0;
  for (const auto& [name, problem] : problems) {
    Times& times = grids.emplace_back();
    ForEachSeed(seeds, [&](std::uint64_t seed) {
      const TimedFill timed = FillTimed(problem, {.seme = seed}, SecondsForAnAnswer);
      if (timed.fill.esito == expected) times.Add(timed.threadMs);
      ++asked;
    });
    answered += times.Count();
    Note(name + ": " + Spread({times}) + " ms" +
         Share(times.Count(), static_cast<std::size_t>(seeds.many)));
  }
  return Spread(grids) + " ms" + Share(answered, asked);
}

std::string MeasurePlainly(const Problema& problem) {
  Times times;
  ForEachSeed({.many = PlainSeeds}, [&](std::uint64_t seed) {
    const Stopwatch watch;
    if (FillPlainly(problem, seed, PlainSeconds).esito != Esito::Tempo) times.Add(watch.ThreadMs());
  });
  if (times.Empty()) return "none";
  return Spread({times}) + " ms" + Share(times.Count(), PlainSeeds);
}

}  // namespace telarium
