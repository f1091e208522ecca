#include <algorithm>
#include <numeric>
#include <random>

#include "composer/lookahead.h"
#include "composer/remaining_letters.h"
#include "composer_bench_grids.h"
#include "composer_bench_plain.h"
#include "composer_bench_rows.h"
#include "composer_bench_words.h"

// What would become of the words that fit a slot of a 13x13 that is half filled.
namespace telarium {
namespace {

constexpr int Judged = 50;
constexpr int Proven = 100;
constexpr double PlainSeconds = 5;

// A grid with half of its cells given, as words of a fill, and the slot that most words fit.
struct HalfFilled {
  Problema problem;
  int slot = 0;
};

void Give(Problema& problem, int slot, std::string_view word) {
  const auto& cells = problem.slot[static_cast<std::size_t>(slot)].caselle;
  for (std::size_t place = 0; place < word.size(); ++place)
    problem.lettere[static_cast<std::size_t>(cells[place])] = SolaLettera(word[place]);
}

std::vector<NumeroParola> Candidates(const HalfFilled& half) {
  return FittingWords(half.problem, half.slot, GivenLetters(half.problem));
}

// How many words of a slot the letters allow that are left in its cells.
std::size_t WordsLeft(const Problema& problem, int slot, const std::vector<Lettere>& left) {
  const auto& cells = problem.slot[static_cast<std::size_t>(slot)].caselle;
  const auto words = FittingWords(problem, slot, GivenLetters(problem));
  return static_cast<std::size_t>(
      std::count_if(words.begin(), words.end(), [&](NumeroParola number) {
        const std::string_view word = problem.vocabolario->Parola(number);
        for (std::size_t place = 0; place < word.size(); ++place)
          if ((left[static_cast<std::size_t>(cells[place])] & SolaLettera(word[place])) == 0)
            return false;
        return true;
      }));
}

int SlotWithMostWords(const Problema& problem) {
  const std::vector<Lettere> left = LettereRimaste(problem, {.passi = 0});
  int best = 0;
  std::size_t most = 0;
  for (int slot = 0; slot < problem.Slot(); ++slot) {
    const std::size_t many = WordsLeft(problem, slot, left);
    if (many <= most) continue;
    most = many;
    best = slot;
  }
  return best;
}

// The next word in some order that has letters already, and cells without.
int NextCrossing(const Problema& problem, const std::vector<int>& order) {
  const std::string letters = GivenLetters(problem);
  for (const int slot : order) {
    const std::string mask = Maschera(problem, slot, letters);
    const auto empty = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '.'));
    if (empty > 0 && empty < mask.size()) return slot;
  }
  return order.front();
}

// As an author would: one word, then such as cross those that stand.
HalfFilled HalfFill(const Problema& empty, std::uint64_t seed) {
  const Riempimento fill = Componi(empty, {.seme = seed});
  Demand(fill.esito == Esito::Riempito, "a 13x13 is not filled");
  HalfFilled half{.problem = empty};
  std::vector<int> order(empty.slot.size());
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), std::mt19937_64(seed));
  const auto given = [&] {
    const std::string letters = GivenLetters(half.problem);
    return empty.Caselle() - std::count(letters.begin(), letters.end(), SenzaLettera);
  };
  while (given() * 2 < empty.Caselle()) {
    const int slot = NextCrossing(half.problem, order);
    Give(half.problem, slot, Maschera(empty, slot, fill.lettere));
  }
  half.slot = SlotWithMostWords(half.problem);
  return half;
}

using Case = std::function<void(const HalfFilled&, std::uint64_t)>;

void ForEachCase(const Seeds& seeds, const Case& work) {
  const auto words = ListVocabulary({});
  for (const char* name : {"g1", "model5", "model6"}) {
    const Problema empty = ProblemOf(PatternNamed(name), words);
    ForEachSeed(seeds, [&](std::uint64_t seed) { work(HalfFill(empty, seed), seed); });
  }
}

// The same by the plain search: how many candidates it has judged by its time, of so many.
std::string JudgePlainly(int wanted) {
  const HalfFilled half = HalfFill(ProblemOf(PatternNamed("g1"), ListVocabulary({})), 1);
  int judged = 0;
  const Stopwatch watch;
  for (const NumeroParola candidate : Candidates(half)) {
    const double left = PlainSeconds - watch.ThreadMs() / 1000;
    if (judged == wanted || left <= 0) break;
    Problema with = half.problem;
    Give(with, half.slot, with.vocabolario->Parola(candidate));
    if (FillPlainly(with, 1, left).esito != Esito::Tempo) ++judged;
  }
  if (judged == 0) return "none";
  return std::to_string(judged) + " in " + Told(watch.ThreadMs()) + " ms";
}

Figures MeasureVerdicts(const Seeds& seeds) {
  Times times;
  int dead = 0, judged = 0;
  ForEachCase(seeds, [&](const HalfFilled& half, std::uint64_t seed) {
    const Stopwatch watch;
    VagliaCandidati(half.problem, half.slot, Judged, {.seme = seed, .passi = 0},
                    [&](const Candidato& candidate) {
                      dead += candidate.sorte == Sorte::Morta ? 1 : 0;
                      ++judged;
                      return true;
                    });
    times.Add(watch.ThreadMs());
  });
  Note(std::to_string(dead) + " of " + std::to_string(judged) + " dead");
  return {Spread({times}) + " ms", JudgePlainly(Judged)};
}

Figures MeasureProven(const Seeds& seeds) {
  Times times, proven;
  ForEachCase(seeds, [&](const HalfFilled& half, std::uint64_t seed) {
    const auto all = static_cast<int>(Candidates(half).size());
    int found = 0;
    const Stopwatch watch;
    VagliaCandidati(half.problem, half.slot, all, {.seme = seed}, [&](const Candidato& candidate) {
      found += candidate.sorte == Sorte::Provata ? 1 : 0;
      return found < Proven;
    });
    times.Add(watch.ThreadMs());
    proven.Add(found);
  });
  Note("at least " + Told(proven.Least()) + " of " + std::to_string(Proven) + " proven");
  return {Spread({times}) + " ms", JudgePlainly(Proven)};
}

}  // namespace

std::vector<Row> LookaheadRows() {
  return {
      {12, "dead or open told for the first 50 candidates, 13x13 half filled", "1 / 3 ms",
       MeasureVerdicts},
      {13, "first 100 candidates proven by a whole fill", "8 / 20 ms", MeasureProven},
  };
}

}  // namespace telarium
