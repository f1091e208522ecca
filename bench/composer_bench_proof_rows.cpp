#include "composer/reasons.h"
#include "composer_bench_grids.h"
#include "composer_bench_rows.h"
#include "composer_bench_words.h"

// Proofs that there is no fill, and the slots that are to blame.
namespace telarium {
namespace {

constexpr WordChoice FewWords = {.cap = 30'000};

NamedProblem Impossible(const std::string& name) {
  return {name, ProblemOf(PatternNamed(name), ListVocabulary(FewWords))};
}

Figures MeasureProofs(const Seeds& seeds) {
  std::string measured;
  for (const char* name : {"g4", "r53_a17"}) {
    const std::string times = MeasureAnswers({Impossible(name)}, seeds, Esito::Impossibile);
    measured += (measured.empty() ? "" : "; ") + times;
  }
  return {measured, MeasurePlainly(Impossible("g4").problem)};
}

// How many are to blame, the median, and in which time.
std::string MeasureGuilty(const NamedProblem& named, const Seeds& seeds) {
  Times many, times;
  int minimal = 0;
  ForEachSeed(seeds, [&](std::uint64_t seed) {
    const Limiti limits{.seme = seed};
    const Riempimento proof = Componi(named.problem, limits);
    Demand(proof.esito == Esito::Impossibile, named.name + " is not impossible");
    const Stopwatch watch;
    const Colpevoli guilty = TrovaColpevoli(named.problem, proof, limits);
    times.Add(watch.ThreadMs());
    many.Add(static_cast<double>(guilty.slot.size()));
    minimal += guilty.minimo ? 1 : 0;
    Demand(Componi(ParteDi(named.problem, guilty.slot), limits).esito == Esito::Impossibile,
           "guilty slots of " + named.name + " can be filled");
  });
  Note(named.name + ": from " + Told(many.Least()) + " to " + Told(many.Worst()) + " slots, " +
       std::to_string(minimal) + " minimal, at worst " + Told(times.Worst()) + " ms");
  return std::to_string(static_cast<int>(many.Median())) + " in " + Told(times.Median()) + " ms";
}

Figures MeasureAllGuilty(const Seeds& seeds) {
  std::string measured;
  for (const char* name : {"g5", "g2", "r53_a17"})
    measured += (measured.empty() ? "" : " / ") + MeasureGuilty(Impossible(name), seeds);
  return {measured, MeasurePlainly(Impossible("g5").problem)};
}

}  // namespace

std::vector<Row> ProofRows() {
  return {
      {10, "proof that the 30,000 commonest words fill no lattice; no 53x30 of 17 %", "15; 250 ms",
       MeasureProofs},
      {11, "guilty slots of such a proof, 9x9 / 16x13 / 53x30",
       "4 in 1 ms / 12 in 11 ms / 28 in 2,000 ms", MeasureAllGuilty},
  };
}

}  // namespace telarium
