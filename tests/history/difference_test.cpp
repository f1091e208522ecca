#include "history/difference.h"

#include <random>

#include "history/bytes.h"
#include "history/line.h"
#include "platform/text.h"
#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

Cruciverba Large() {
  Cruciverba crossword = DrawnCrossword(std::vector<std::string>(30, std::string(53, 'A')));
  for (int c = 1; c <= MaxColonne; ++c) {
    for (int r = 1; r <= MaxRighe; ++r)
      crossword.definizioni.Imposta(Unisci("Definizione di una parola ", c, ' ', r), c, r,
                                    Orizzontale);
  }
  return crossword;
}

// Crosswords that differ in one thing or in all.
std::vector<Cruciverba> Crosswords() {
  const Cruciverba small = DrawnCrossword({"CA#", ".B."});
  std::vector<Cruciverba> all(6, small);
  ScriviCarattere(all[0], {3, 2}, CellaNera);
  Ridimensiona(all[1], 2, 4);
  all[2].definizioni.Imposta("Prima", 1, 1, Orizzontale);
  all[2].definizioni.Imposta("fuori\r\n", 53, 30, Verticale);
  all[3].colori.Imposta(NessunColore, 3, 1);
  all[3].colori.Imposta(0x7FFFFFFF, 53, 30);
  all[4].laboratorio = Laboratorio{{{{1, 1}, Orizzontale}, {{53, 30}, Verticale}},
                                   {"CA"},
                                   {"AB", ""},
                                   Simmetria::Quarto,
                                   {"nuova = chi sa"}};
  all[5].intestazione.Proprio()[0] = "Autore     : Un altro";
  all[5].griglia[1] = std::string("con \0 dentro", 12);
  all[5].griglia.pop_back();
  all.push_back(small);
  all.push_back({});
  all.push_back(Large());
  return all;
}

TEST(CrosswordDifference, LeadsFromEachCrosswordToEachOther) {
  const std::vector<Cruciverba> all = Crosswords();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = 0; j < all.size(); ++j) {
      const std::string difference = DifferenzaTra(all[i], all[j]);
      EXPECT_EQ(difference.empty(), i == j) << i << ' ' << j;
      const auto reached = ConDifferenza(all[i], difference);
      EXPECT_TRUE(reached && *reached == all[j]) << i << ' ' << j;
    }
  }
}

std::string Part(char letter, std::initializer_list<std::uint64_t> numbers, std::string text = {}) {
  ScrittoreDiByte writer;
  writer.Grezzo({&letter, 1});
  for (const std::uint64_t number : numbers)
    writer.Numero(number);
  writer.Grezzo(text);
  return writer.Prendi();
}

TEST(CrosswordDifference, NothingPastTheLimitsOfACrosswordIsTaken) {
  constexpr std::uint64_t huge = ~std::uint64_t{0};
  const std::string bad[] = {
      Part('D', {54, 2}),
      Part('D', {3, 31}),
      Part('D', {0, 2}),
      Part('D', {huge, huge}),
      Part('N', {31}),
      Part('R', {2}, std::string("\1A")),
      Part('R', {huge}, std::string("\1A")),
      Part('R', {1, 2}, "A"),
      Part('R', {1, huge}, "A"),
      Part('C', {0, 1, 1}, std::string("\1A")),
      Part('C', {54, 1, 1}, std::string("\1A")),
      Part('C', {1, 31, 1}, std::string("\1A")),
      Part('C', {1, 1, 3}, std::string("\1A")),
      Part('K', {1, 1, std::uint64_t{1} << 33}),
      Part('L', {huge}),
      Part('L', {1, 54, 1, 1, 0, 0, 0, 0}),
      Part('L', {0, 0, 0, 6, 0}),
      Part('L', {0, huge}),
      "I",
      "X",
      "\x80",
      Part('N', {}) + std::string(12, '\xFF'),
  };
  const Cruciverba small = DrawnCrossword({"CA#", ".B."});
  for (const std::string& one : bad)
    EXPECT_FALSE(ConDifferenza(small, one)) << &one - bad;
  EXPECT_TRUE(ConDifferenza(small, Part('D', {53, 30})));
}

TEST(CrosswordDifference, CutOrChangedItHarmsNothing) {
  std::mt19937 chance(1);
  const std::vector<Cruciverba> all = Crosswords();
  for (std::size_t i = 0; i + 1 < all.size(); ++i) {
    const std::string whole = DifferenzaTra(all[6], all[i]);
    for (std::size_t there = 0; there < whole.size(); ++there) {
      ConDifferenza(all[6], whole.substr(0, there));
      std::string changed = whole;
      changed[there] = static_cast<char>(chance());
      if (const auto read = ConDifferenza(all[6], changed)) DifferenzaTra({}, *read);
    }
  }
}

TEST(LineOfSteps, TenThousandStepsOfACellFitIntoItsMemory) {
  Linea line({"Inizio", Large(), {}});
  const std::size_t before = line.Byte();
  Cruciverba crossword = line.Attuale();
  for (int i = 0; i < 10'000; ++i) {
    ScriviCarattere(crossword, {1 + i % 53, 1 + i / 53 % 30}, static_cast<char>('A' + i % 25));
    line.Aggiungi({"Lettera", crossword, {}});
  }
  EXPECT_EQ(line.Caduti(), 0u);
  EXPECT_LT((line.Byte() - before) / 10'000, 4096u);
}

TEST(LineOfSteps, TheOldestGoWhenItsMemoryIsFull) {
  Linea line({"0", DrawnCrossword({"AAAA"}), {}}, 20'000);
  line.PostoDelFile(0);
  Cruciverba crossword = line.Attuale();
  for (int i = 1; i <= 100; ++i) {
    ScriviCarattere(crossword, {1 + i % 4, 1}, static_cast<char>('A' + i % 25));
    line.Aggiungi({std::to_string(i), crossword, {}});
    EXPECT_LE(line.Byte(), 20'000u);
    EXPECT_EQ(line[line.Posto()].motivo, std::to_string(i));
    EXPECT_EQ(line[0].motivo, std::to_string(line.Caduti()));
    EXPECT_EQ(line.PostoDelFile().has_value(), line.Caduti() == 0);
  }
  EXPECT_GT(line.Caduti(), 50u);
  // What was undone is given back.
  line.VaiA(0);
  line.Aggiungi({"di nuovo", crossword, {}});
  EXPECT_EQ(line.Quanti(), 2u);
  EXPECT_LT(line.Byte(), 10'000u);
}

}  // namespace
}  // namespace telarium
