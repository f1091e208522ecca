#include "composer/reasons.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

// Every word of so many letters out of the first ones of the alphabet.
Texts AllWords(std::size_t letters, char last) {
  Texts words = {""};
  for (std::size_t k = 0; k < letters; ++k) {
    Texts longer;
    for (const std::string& word : words)
      for (char letter = 'A'; letter <= last; ++letter)
        longer.push_back(word + letter);
    words = std::move(longer);
  }
  return words;
}

struct Planted {
  std::string name;
  Texts rows;   // "#" black, "." free, else a letter that is given
  Texts words;  // besides those of three letters out of A to C, unless they are named
  Texts wanted = {};
  Texts elsewhere = {};
  bool foreign = false;  // words of three letters are, and two of them may stand
  bool akin = false;     // words of three letters are
  Texts unclued = {};    // of the words; where there are some the others need a clue
  // Slots in reading order, across before down.
  std::vector<int> guilty = {};
  Texts guiltyWords = {};
};

std::shared_ptr<const Vocabolario> WordsOf(const Planted& planted) {
  Texts words = planted.words;
  const bool named =
      std::ranges::any_of(words, [](const std::string& word) { return word.size() == 3; });
  if (!named) {
    for (const std::string& word : AllWords(3, 'C'))
      words.push_back(word);
  }
  Texts ofThree;
  std::vector<ParolaDaUsare> used;
  for (const std::string& word : words) {
    const bool foreign = planted.foreign && word.size() == 3;
    used.push_back({.lettere = word,
                    .pregio = 1,
                    .definita = std::ranges::count(planted.unclued, word) == 0,
                    .genie = foreign ? SolaGenia(Genia::Straniera) : Genie{0}});
    if (word.size() == 3) ofThree.push_back(word);
  }
  Vocabolario::Parentela kin;
  if (planted.akin)
    kin = [ofThree](std::string_view word) { return word.size() == 3 ? ofThree : Texts(); };
  return std::make_shared<Vocabolario>(used, kin);
}

Problema ProblemOf(const Planted& planted) {
  Problema problem;
  problem.vocabolario = WordsOf(planted);
  problem.volute = planted.wanted;
  problem.altrove = planted.elsewhere;
  problem.soloDefinite = !planted.unclued.empty();
  if (planted.foreign) problem.alMassimo[static_cast<std::size_t>(Genia::Straniera)] = 2;
  const auto columns = static_cast<int>(planted.rows.front().size());
  const auto rows = static_cast<int>(planted.rows.size());
  const auto sign = [&](int cell) {
    return planted
        .rows[static_cast<std::size_t>(cell / columns)][static_cast<std::size_t>(cell % columns)];
  };
  for (int cell = 0; cell < columns * rows; ++cell)
    problem.lettere.push_back(sign(cell) < 'A' ? TutteLeLettere : SolaLettera(sign(cell)));
  const auto add = [&](int first, int step, int many) {
    SlotDaRiempire slot;
    for (int k = 0; k <= many; ++k) {
      if (k < many && sign(first + k * step) != '#') {
        slot.caselle.push_back(first + k * step);
        continue;
      }
      if (slot.caselle.size() > 1) problem.slot.push_back(slot);
      slot.caselle.clear();
    }
  };
  for (int row = 0; row < rows; ++row)
    add(row * columns, 1, columns);
  for (int column = 0; column < columns; ++column)
    add(column, columns, rows);
  return problem;
}

class PlantedReasons : public ::testing::TestWithParam<Planted> {};

// Slots 0 and 1 across, 2 and 3 down.
const Texts Frame = {"....", ".#.#", "...#"};

INSTANTIATE_TEST_SUITE_P(
    Composer, PlantedReasons,
    ::testing::Values(
        Planted{.name = "Crossing", .rows = Frame, .words = {"ADDD", "BDDA"}, .guilty = {0, 3}},
        Planted{.name = "GivenLetter",
                .rows = {"....", "Q#.#", "...#"},
                .words = {"AAAA"},
                .guilty = {2}},
        Planted{.name = "NoWord", .rows = Frame, .words = {}, .guilty = {0}},
        Planted{.name = "SameWordFarApart",
                .rows = {"....#...#....#..."},
                .words = {"ABBA"},
                .guilty = {0, 2}},
        Planted{.name = "WordElsewhere",
                .rows = {"...#....#..."},
                .words = {"ABBA"},
                .elsewhere = {"ABBA"},
                .guilty = {1}},
        Planted{.name = "TooManyOfAKind",
                .rows = {"...#...#....#..."},
                .words = {"ABBA"},
                .foreign = true,
                .guilty = {0, 1, 3}},
        Planted{.name = "Akin",
                .rows = {"...#....#..."},
                .words = {"ABC", "ABD", "ABBA"},
                .akin = true,
                .guilty = {0, 2}},
        Planted{.name = "WantedWord",
                .rows = Frame,
                .words = {"ADDD", "AABA"},
                .wanted = {"ABC", "ADDD"},
                .guilty = {0, 3},
                .guiltyWords = {"ADDD"}},
        Planted{.name = "WantedWordWithoutRoom",
                .rows = {"B...", ".#.#", "...#"},
                .words = {"ABCA", "BBCA"},
                .wanted = {"ABCA"},
                .guilty = {0},
                .guiltyWords = {"ABCA"}},
        Planted{.name = "WantedWordBesideOneWithoutAClue",
                .rows = {"B...#...."},
                .words = {"BAAA", "CAAA"},
                .wanted = {"BAAA", "DDDD"},
                .unclued = {"BAAA"},
                .guilty = {1},
                .guiltyWords = {"DDDD"}}),
    [](const auto& instance) { return instance.param.name; });

TEST_P(PlantedReasons, AreFoundExactly) {
  const Problema problem = ProblemOf(GetParam());
  const Riempimento proof = Componi(problem, {});
  ASSERT_EQ(proof.esito, Esito::Impossibile);
  const Colpevoli guilty = TrovaColpevoli(problem, proof, {});
  EXPECT_EQ(guilty.slot, GetParam().guilty);
  EXPECT_EQ(guilty.volute, GetParam().guiltyWords);
  EXPECT_TRUE(guilty.minimo);
}

TEST_P(PlantedReasons, AreStillImpossibleWhenTheyAreBrokenOff) {
  const Problema problem = ProblemOf(GetParam());
  const Riempimento proof = Componi(problem, {});
  std::stop_source stopped;
  stopped.request_stop();
  for (const Limiti& limits :
       {Limiti{.passi = 0}, Limiti{.passi = 3}, Limiti{.ferma = stopped.get_token()}}) {
    const Colpevoli guilty = TrovaColpevoli(problem, proof, limits);
    EXPECT_EQ(Componi(ParteDi(problem, guilty.slot, guilty.volute), {}).esito, Esito::Impossibile);
  }
}

}  // namespace
}  // namespace telarium
