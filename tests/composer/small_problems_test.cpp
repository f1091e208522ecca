#include <algorithm>

#include <gtest/gtest.h>

#include "composer/reasons.h"
#include "composer/second_search.h"

namespace telarium {
namespace {

// Sanitizers are slow: fewer cases then, and easier ones.
constexpr int CasesOfABlock = TELARIUM_SLOW_TESTS ? 20 : 250;
constexpr int GuiltyOfABlock = TELARIUM_SLOW_TESTS ? 4 : 25;
// What the second search takes for too hard; such a case is passed over.
constexpr std::int64_t MostTries = TELARIUM_SLOW_TESTS ? 20'000 : 3'000'000;
constexpr std::uint64_t SeedsOfABlock = 100'000;

void ExpectSound(const SmallCase& small, const Riempimento& answer) {
  EXPECT_EQ(FaultsOf(small, small.problem, answer.lettere), std::vector<std::string>());
  EXPECT_EQ(Difetti(small.problem, answer.lettere), std::vector<std::string>());
}

// The cases are in blocks, so that they run side by side.
class SmallProblems : public ::testing::TestWithParam<int> {
 protected:
  std::uint64_t FirstSeed() const { return static_cast<std::uint64_t>(GetParam()) * SeedsOfABlock; }
};
INSTANTIATE_TEST_SUITE_P(Composer, SmallProblems, ::testing::Range(0, 8));

TEST_P(SmallProblems, AreDecidedAsByASecondSearch) {
  int decided = 0, impossible = 0, hard = 0;
  for (std::uint64_t seed = FirstSeed(); decided < CasesOfABlock; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = DrawCase(seed);
    SecondSearch second(small, small.problem);
    const Esito expected = second.Decide(MostTries);
    if (expected == Esito::Tempo) continue;
    ++decided;
    impossible += expected == Esito::Impossibile;
    hard += second.Tried() >= 100;
    const Riempimento answer = Componi(small.problem, {.seme = seed});
    EXPECT_EQ(answer.esito, expected);
    if (answer.esito == Esito::Riempito) ExpectSound(small, answer);
  }
  // Else the cases say little.
  EXPECT_NEAR(impossible, decided / 2, decided / 3);
  EXPECT_GT(hard, decided / 4);
}

// The same problem without the other slots and wanted words; its cells keep their numbers.
Problema OnlyOf(const Problema& whole, const std::vector<int>& slots,
                const std::vector<std::string>& wanted) {
  Problema part = whole;
  part.slot.clear();
  for (const int slot : slots)
    part.slot.push_back(whole.slot.at(static_cast<std::size_t>(slot)));
  part.volute = wanted;
  part.esenti = whole.volute;
  return part;
}

template <class Value>
std::vector<Value> Without(std::vector<Value> values, const Value& one) {
  std::erase(values, one);
  return values;
}

// A slot outside a guilty set may not be where the wanted word to blame stands.
bool HasRoomElsewhere(const Problema& problem, const std::vector<int>& slots,
                      const std::string& word) {
  for (int slot = 0; slot < problem.Slot(); ++slot) {
    const auto& [cells, least, open] = problem.slot[static_cast<std::size_t>(slot)];
    if (open || cells.size() != word.size() || std::ranges::count(slots, slot) > 0) continue;
    bool room = true;
    for (std::size_t i = 0; i < word.size(); ++i)
      room &= (problem.lettere[static_cast<std::size_t>(cells[i])] & SolaLettera(word[i])) != 0;
    if (room) return true;
  }
  return false;
}

Esito Decide(const SmallCase& small, const Problema& problem) {
  return SecondSearch(small, problem).Decide(MostTries);
}

void ExpectGuilty(const SmallCase& small, const Colpevoli& guilty) {
  EXPECT_TRUE(std::ranges::is_sorted(guilty.slot));
  EXPECT_NE(Decide(small, OnlyOf(small.problem, guilty.slot, guilty.volute)), Esito::Riempito);
  for (const std::string& word : guilty.volute) {
    EXPECT_TRUE(std::ranges::count(small.problem.volute, word));
    EXPECT_FALSE(HasRoomElsewhere(small.problem, guilty.slot, word));
  }
  if (!guilty.minimo) return;
  for (const int slot : guilty.slot) {
    // Where a wanted word to blame might stand in it, the set must have it.
    const auto length = small.problem.slot[static_cast<std::size_t>(slot)].caselle.size();
    if (std::ranges::any_of(guilty.volute, [&](const auto& word) { return word.size() == length; }))
      continue;
    EXPECT_NE(Decide(small, OnlyOf(small.problem, Without(guilty.slot, slot), guilty.volute)),
              Esito::Impossibile)
        << slot;
  }
  for (const std::string& word : guilty.volute) {
    EXPECT_NE(Decide(small, OnlyOf(small.problem, guilty.slot, Without(guilty.volute, word))),
              Esito::Impossibile)
        << word;
  }
}

TEST_P(SmallProblems, HaveGuiltySlotsThatASecondSearchFindsGuilty) {
  int found = 0, minimal = 0;
  for (std::uint64_t seed = FirstSeed(); found < GuiltyOfABlock; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = DrawCase(seed);
    const Riempimento proof = Componi(small.problem, {.seme = seed});
    if (proof.esito != Esito::Impossibile || Decide(small, small.problem) == Esito::Tempo) continue;
    const Colpevoli guilty = TrovaColpevoli(small.problem, proof, {.seme = seed});
    ExpectGuilty(small, guilty);
    ++found;
    minimal += guilty.minimo;
  }
  EXPECT_GT(minimal, found / 2);
}

}  // namespace
}  // namespace telarium
