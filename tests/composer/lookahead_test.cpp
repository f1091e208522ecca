#include "composer/lookahead.h"

#include <map>
#include <memory>
#include <thread>

#include <gtest/gtest.h>

#include "composer/remaining_letters.h"
#include "composer/second_search.h"

namespace telarium {
namespace {

constexpr int CasesOfABlock = TELARIUM_SLOW_TESTS ? 3 : 30;
constexpr std::int64_t MostTries = 20'000;  // of the second search; harder cases are passed over
constexpr std::uint64_t SeedsOfABlock = 50'000;
constexpr int All = 1'000'000;

std::vector<Candidato> Judge(const Problema& problem, int slot, const Limiti& limits) {
  std::vector<Candidato> judged;
  EXPECT_TRUE(VagliaCandidati(problem, slot, All, limits, [&](const Candidato& candidate) {
    judged.push_back(candidate);
    return true;
  }));
  return judged;
}

Lettere& LettersOf(Problema& problem, int slot, std::size_t place) {
  const int cell = problem.slot.at(static_cast<std::size_t>(slot)).caselle.at(place);
  return problem.lettere.at(static_cast<std::size_t>(cell));
}

// --- A grid made by hand: an entry of three, and three that go down from its letters ---

constexpr int Top = 0, Down = 1, Standing = 4;

Problema Comb() {
  std::vector<ParolaDaUsare> words;
  for (const char* word :
       {"ORA", "ORO", "ALI", "UVA", "ERE", "IVO", "ORTO", "ASTA", "ERTA", "RANA", "LAMA", "IDEA"})
    words.push_back({.lettere = word, .pregio = MaxPregio - static_cast<int>(words.size())});
  Problema problem;
  problem.vocabolario = std::make_shared<const Vocabolario>(words);
  problem.slot = {{{0, 1, 2}}, {{0, 3, 4, 5}}, {{1, 6, 7, 8}}, {{2, 9, 10, 11}}, {{12, 13, 14}}};
  problem.lettere.assign(15, TutteLeLettere);
  LettersOf(problem, Down, 2) = SolaLettera('T');
  for (std::size_t place = 0; place < 3; ++place)
    LettersOf(problem, Standing, place) = SolaLettera("ORO"[place]);
  return problem;
}

std::vector<std::string> Told(const Problema& problem) {
  std::vector<std::string> told;
  for (const Candidato& candidate : Judge(problem, Top, {.passi = 1000})) {
    told.emplace_back(problem.vocabolario->Parola(candidate.parola));
    told.back() += candidate.sorte == Sorte::Morta ? " dead" : " proven";
    if (candidate.incrocio >= 0)
      told.back() += " " + std::to_string(candidate.incrocio) + " " + candidate.maschera;
  }
  return told;
}

TEST(Candidates, AreJudgedBestFirstAndToldByTheirCrossing) {
  // ORO stands. ERE would have ERTA both at its first letter and at its last one.
  EXPECT_EQ(Told(Comb()), (std::vector<std::string>{"ORA proven", "ALI proven", "UVA dead 1 U.T.",
                                                    "ERE dead", "IVO dead 1 I.T."}));
}

TEST(Candidates, AreAllDeadWhereAnEntryElsewhereHasNoWords) {
  Problema problem = Comb();
  LettersOf(problem, Standing, 0) = SolaLettera('Z');
  LettersOf(problem, Standing, 1) = TutteLeLettere;
  LettersOf(problem, Top, 0) = SolaLettera('O');
  EXPECT_EQ(Told(problem), (std::vector<std::string>{"ORA dead 4 Z.O", "ORO dead 4 Z.O"}));
}

TEST(Candidates, EndWhenTheyAreNotWantedAnyMoreOrAreStopped) {
  int heard = 0;
  const auto hear = [&](const Candidato&) { return ++heard < 2; };
  EXPECT_TRUE(VagliaCandidati(Comb(), Top, All, {.passi = 0}, hear));
  EXPECT_EQ(heard, 2);
  EXPECT_TRUE(VagliaCandidati(Comb(), Top, 1, {.passi = 0}, hear));
  EXPECT_EQ(heard, 3);
  std::mt19937_64 chance(0);
  const SmallCase hard = DrawCase({8, 8, 0, 6, 1.5, false}, chance);
  for (const int milliseconds : {0, 20}) {
    std::stop_source stop;
    std::jthread other([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
      stop.request_stop();
    });
    if (milliseconds == 0) other.join();
    EXPECT_FALSE(VagliaCandidati(hard.problem, 0, All, {.ferma = stop.get_token()},
                                 [](const Candidato&) { return true; }));
  }
}

TEST(RemainingLetters, AreThoseOfConsistencyAndOfATrialOfEach) {
  const auto letters = [](const char* some) {
    Lettere all = 0;
    for (; *some != 0; ++some)
      all |= SolaLettera(*some);
    return all;
  };
  Problema problem = Comb();
  EXPECT_EQ(LettereRimaste(problem, {.passi = 0})[0], letters("AEO"));
  EXPECT_EQ(LettereRimaste(problem, {.passi = 1000})[0], letters("AO"));
  EXPECT_EQ(LettereRimaste(problem, {.passi = 1000})[5], letters("AO"));  // of one entry only
  LettersOf(problem, Top, 0) = SolaLettera('O');
  EXPECT_EQ(CaselleObbligate(problem, LettereRimaste(problem, {.passi = 0})),
            (std::vector<int>{1, 2, 3, 5, 6, 7, 8, 9, 10, 11}));
  LettersOf(problem, Top, 0) = SolaLettera('U');
  EXPECT_EQ(LettereRimaste(problem, {.passi = 0}), std::vector<Lettere>(15, 0));
}

// --- Cases by chance, against a second search ---

// Entries of which each begins with the last letter of the one before: long enough that those far
// away keep their words while a neighbourhood is filled.
SmallCase DrawChain(std::uint64_t seed) {
  constexpr int Entries = 14, Words = 24;
  std::mt19937_64 chance(seed);
  const auto letter = [&] { return "AEIO"[chance() % 4]; };
  SmallCase chain;
  while (chain.words.size() < Words)
    chain.words[{letter(), letter(), letter()}] = {};
  std::vector<ParolaDaUsare> words;
  for (const auto& [word, one] : chain.words)
    words.push_back({.lettere = word, .pregio = static_cast<int>(chance() % MaxPregio)});
  chain.problem.vocabolario = std::make_shared<const Vocabolario>(words);
  for (int cell = 0; cell <= 2 * Entries; ++cell)
    chain.readingOrder.push_back(cell);
  for (int k = 0; k < Entries; ++k)
    chain.problem.slot.push_back({{2 * k, 2 * k + 1, 2 * k + 2}});
  chain.problem.lettere.assign(chain.readingOrder.size(), TutteLeLettere);
  return chain;
}

Problema WithWord(Problema problem, int slot, const std::string& word) {
  for (std::size_t place = 0; place < word.size(); ++place)
    LettersOf(problem, slot, place) &= SolaLettera(word[place]);
  return problem;
}

// A slot by itself, with the letters of a mask alone.
Problema Masked(Problema problem, int slot, const std::string& mask) {
  problem.slot = {problem.slot.at(static_cast<std::size_t>(slot))};
  problem.volute.clear();
  for (std::size_t place = 0; place < mask.size(); ++place) {
    Lettere& letters = LettersOf(problem, 0, place);
    // A sign that is no letter stays one.
    if (letters != 0) letters = mask[place] == '.' ? TutteLeLettere : SolaLettera(mask[place]);
  }
  return problem;
}

Esito Decide(const SmallCase& small, const Problema& problem) {
  return SecondSearch(small, problem).Decide(MostTries);
}

class SmallLookahead : public ::testing::TestWithParam<int> {
 protected:
  std::uint64_t FirstSeed() const {
    return static_cast<std::uint64_t>(GetParam() + 1) * SeedsOfABlock;
  }
};
INSTANTIATE_TEST_SUITE_P(Composer, SmallLookahead, ::testing::Range(0, 4));

TEST_P(SmallLookahead, AgreesWithASecondSearch) {
  int cases = 0, proven = 0, dead = 0, told = 0;
  for (std::uint64_t seed = FirstSeed(); cases < CasesOfABlock; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = seed % 3 == 0 ? DrawChain(seed) : DrawCase(seed);
    const Problema& problem = small.problem;
    const int slot = problem.slot.empty() ? 0 : static_cast<int>(seed) % problem.Slot();
    if (problem.slot.empty() || problem.slot[static_cast<std::size_t>(slot)].aperto) continue;
    ++cases;
    std::map<std::string, Sorte> lots;
    for (const Candidato& candidate : Judge(problem, slot, {.seme = seed})) {
      lots[std::string(problem.vocabolario->Parola(candidate.parola))] = candidate.sorte;
      proven += candidate.sorte == Sorte::Provata;
      dead += candidate.sorte == Sorte::Morta;
      EXPECT_NE(candidate.sorte, Sorte::Aperta);
      if (candidate.incrocio < 0) continue;
      ++told;
      EXPECT_EQ(Decide(small, Masked(problem, candidate.incrocio, candidate.maschera)),
                Esito::Impossibile);
    }
    // Words that are not among the candidates have no fill either.
    for (const auto& [word, one] : small.words) {
      if (word.size() != problem.slot[static_cast<std::size_t>(slot)].caselle.size()) continue;
      const bool fills = lots.contains(word) && lots[word] == Sorte::Provata;
      EXPECT_NE(Decide(small, WithWord(problem, slot, word)),
                fills ? Esito::Impossibile : Esito::Riempito)
          << word;
    }
    for (const Candidato& candidate : Judge(problem, slot, {.passi = 0})) {
      const std::string word(problem.vocabolario->Parola(candidate.parola));
      EXPECT_TRUE(candidate.sorte == Sorte::Aperta || lots[word] == Sorte::Morta);
    }
  }
  EXPECT_GT(proven, cases);
  EXPECT_GT(dead, cases);
  EXPECT_TRUE(TELARIUM_SLOW_TESTS || told > 0);  // rare among few cases
}

TEST_P(SmallLookahead, LeavesEachLetterThatAFillHas) {
  int taken = 0;
  for (std::uint64_t seed = FirstSeed(); seed < FirstSeed() + CasesOfABlock; ++seed) {
    SCOPED_TRACE(seed);
    const SmallCase small = DrawCase(seed);
    const std::vector<Lettere> left = LettereRimaste(small.problem, {.passi = 1000});
    for (std::size_t cell = 0; cell < left.size(); ++cell) {
      Problema lost = small.problem;
      lost.lettere[cell] &= ~left[cell];
      if (lost.lettere[cell] == 0 || lost.lasciate[cell]) continue;
      ++taken;
      EXPECT_NE(Decide(small, lost), Esito::Riempito) << cell;
    }
  }
  EXPECT_GT(taken, CasesOfABlock);
}

}  // namespace
}  // namespace telarium
