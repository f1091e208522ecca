#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "composer/floor.h"
#include "composer/improvement.h"
#include "composer/proposals.h"
#include "composer/second_search.h"

// How good a fill is: improvement, floor and proposals.
namespace telarium {
namespace {

constexpr int Cases = TELARIUM_SLOW_TESTS ? 30 : 400;
constexpr std::int64_t MostTries = TELARIUM_SLOW_TESTS ? 20'000 : 1'000'000;

void ExpectSound(const SmallCase& small, const std::string& letters) {
  EXPECT_EQ(FaultsOf(small, small.problem, letters), std::vector<std::string>());
}

TEST(Improvement, KeepsAllDemandsAndIsNeverWorse) {
  int filled = 0, better = 0;
  std::mt19937_64 chance(1);
  for (std::uint64_t seed = 0; filled < Cases / 4; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = DrawCase(
        {.columns = 6, .rows = 5, .black = 15, .letters = 5, .plenty = 8, .demands = true}, chance);
    const Riempimento first = Componi(small.problem, {.seme = seed});
    if (first.esito != Esito::Riempito) continue;
    ++filled;
    const Riempimento improved = Migliora(small.problem, first.lettere, 60, {.seme = seed});
    EXPECT_EQ(improved.esito, Esito::Riempito);
    ExpectSound(small, improved.lettere);
    const auto before = PregioDi(small.problem, first.lettere);
    const auto after = PregioDi(small.problem, improved.lettere);
    EXPECT_GE(after, before);
    better += after > before;
    const Limiti other{.seme = seed, .lavoratori = 2};
    EXPECT_EQ(Migliora(small.problem, first.lettere, 60, other).lettere, improved.lettere);
  }
  EXPECT_GT(better, filled / 4);
}

// Three words across and three down, all different: read from all triples of words.
std::int64_t BestOfSquare(const Vocabolario& words, std::string& worst) {
  const auto word = [&](int number) { return words.Parola({3, number}); };
  std::int64_t best = -1, least = 0;
  for (int a = 0; a < words.Quante(3); ++a)
    for (int b = 0; b < words.Quante(3); ++b)
      for (int c = 0; c < words.Quante(3); ++c) {
        std::set<int> all = {a, b, c};
        for (std::size_t k = 0; k < 3 && all.size() == 3 + k; ++k) {
          const auto down = words.Cerca(std::string{word(a)[k], word(b)[k], word(c)[k]});
          if (down) all.insert(down->numero);
        }
        if (all.size() < 6) continue;
        std::int64_t worth = 0;
        for (const int number : all)
          worth += words.Pregio({3, number});
        if (best < 0 || worth < least) {
          least = worth;
          worst = std::string(word(a)) + std::string(word(b)) + std::string(word(c));
        }
        best = std::max(best, worth);
      }
  return best;
}

TEST(Improvement, ReachesTheBestFillOfASquareFromTheWorst) {
  std::mt19937_64 chance(5);
  int squares = 0;
  while (squares < 20) {
    std::set<std::string> letters;
    for (int k = 0; k < 45; ++k)
      letters.insert(
          {char('A' + chance() % 4), char('A' + chance() % 4), char('A' + chance() % 4)});
    std::vector<ParolaDaUsare> words;
    for (const std::string& one : letters)
      words.push_back({.lettere = one, .pregio = static_cast<int>(chance() % 700)});
    Problema problem;
    problem.vocabolario = std::make_shared<const Vocabolario>(words);
    problem.slot = {{{0, 1, 2}}, {{3, 4, 5}}, {{6, 7, 8}}, {{0, 3, 6}}, {{1, 4, 7}}, {{2, 5, 8}}};
    problem.lettere.assign(9, TutteLeLettere);
    std::string worst;
    const std::int64_t best = BestOfSquare(*problem.vocabolario, worst);
    if (best < 0) continue;
    ++squares;
    EXPECT_EQ(PregioDi(problem, Migliora(problem, worst, 100, {}).lettere), best) << worst;
  }
}

TEST(Floor, IsTheHighestScoreAtWhichASecondSearchFills) {
  int found = 0, raised = 0;
  for (std::uint64_t seed = 0; found < Cases / 4; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = DrawCase(seed);
    const Soglia floor = TrovaSoglia(small.problem, {.seme = seed});
    if (floor.riempimento.esito != Esito::Riempito) continue;
    ++found;
    EXPECT_TRUE(floor.provata);
    ExpectSound(small, floor.riempimento.lettere);
    const auto decide = [&](int least) {
      const Problema harder = ConMinimo(small.problem, least);
      return SecondSearch(small, harder).Decide(MostTries);
    };
    EXPECT_NE(decide(floor.fino), Esito::Impossibile);
    if (floor.oltre) {
      EXPECT_GT(*floor.oltre, floor.fino);
      EXPECT_NE(decide(*floor.oltre), Esito::Riempito) << floor.fino << " " << *floor.oltre;
    }
    raised += floor.fino > 0;
  }
  EXPECT_GT(raised, found / 2);
}

int SameEntries(const Problema& problem, const std::string& one, const std::string& other) {
  int same = 0;
  for (int slot = 0; slot < problem.Slot(); ++slot)
    same += Maschera(problem, slot, one) == Maschera(problem, slot, other);
  return same;
}

TEST(Proposals, AreFillsThatDifferInHalfOfTheirEntries) {
  int several = 0;
  std::mt19937_64 chance(2);
  for (std::uint64_t seed = 1; several < Cases / 10; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = DrawCase(
        {.columns = 5, .rows = 5, .black = 15, .letters = 5, .plenty = 8, .demands = false},
        chance);
    const auto fills = Proponi(small.problem, 3, {.seme = seed}, RiempiEMigliora(20));
    ASSERT_FALSE(fills.empty());
    if (fills.size() < 2) continue;
    ++several;
    for (std::size_t k = 0; k < fills.size(); ++k) {
      ExpectSound(small, fills[k].lettere);
      for (std::size_t j = 0; j < k; ++j) {
        EXPECT_LE(2 * SameEntries(small.problem, fills[j].lettere, fills[k].lettere),
                  small.problem.Slot());
      }
    }
  }
}

TEST(Proposals, AreAsManyAsThereAre) {
  const std::vector<ParolaDaUsare> words = {{.lettere = "AAA", .pregio = 900},
                                            {.lettere = "BBB", .pregio = 1}};
  Problema problem;
  problem.vocabolario = std::make_shared<const Vocabolario>(words);
  problem.slot = {{{0, 1, 2}}};
  problem.lettere.assign(3, TutteLeLettere);
  const auto propose = [&] { return Proponi(problem, 5, {}, RiempiEMigliora(10)).size(); };
  EXPECT_EQ(propose(), 2u);
  problem.volute = {"BBB"};
  EXPECT_EQ(propose(), 1u);
  problem.volute = {"CCC"};
  EXPECT_EQ(propose(), 1u);  // which is the proof that there is none
}

}  // namespace
}  // namespace telarium
