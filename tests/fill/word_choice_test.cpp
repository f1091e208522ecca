#include "fill/word_choice.h"

#include <cmath>

#include "dictionary/dictionary_writer.h"
#include "platform/codepage.h"
#include "support/drawn_crossword.h"
#include "support/numbered_words.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Words = std::vector<std::string>;

const double JustBelowOne = std::nextafter(1.0, 0.0);

class WordChoiceTest : public TelariumTest {
 protected:
  SceltaDiParole choice{dictionary, [this] { return machine.Casuale(); }};

  // The candidates for a pattern, by number and as words.
  std::vector<int> Numbers(std::string_view pattern) {
    EXPECT_TRUE(choice.CercaCandidati(pattern));
    std::vector<int> numbers;
    for (int i = 1; i <= choice.NumCandidati(); ++i) {
      numbers.push_back(choice.Candidati(i));
    }
    return numbers;
  }
  Words WordsFor(std::string_view pattern) {
    Words words;
    for (const int n : Numbers(pattern)) {
      words.push_back(
          dictionary.LeggiParola(static_cast<std::int16_t>(n), static_cast<int>(pattern.size())));
    }
    return words;
  }
};

TEST_F(WordChoiceTest, OnlyTheAllBlankPatternLeavesOutQAndH) {
  OpenDictionary({"ACQUA", "CARTA", "CHINA", "HOTEL", "LIBRO", "QUOTA"});
  EXPECT_EQ(WordsFor("     "), (Words{"CARTA", "LIBRO"}));
  EXPECT_EQ(WordsFor("    A"), (Words{"ACQUA", "CARTA", "CHINA", "QUOTA"}));
  EXPECT_EQ(WordsFor("C  NA"), Words{"CHINA"});
  EXPECT_EQ(WordsFor("HOTEL"), Words{"HOTEL"});
  EXPECT_EQ(WordsFor("HOTEK"), Words{});
  EXPECT_EQ(WordsFor("carta"), Words{});
  EXPECT_EQ(WordsFor("    "), Words{});
}

TEST_F(WordChoiceTest, NumbersAreRightInALongSection) {
  // A reader that takes 64 KB at a time has 4,369 words of 15 letters to a read.
  const std::vector<int> withQH = {1, 2, 4369, 4370, 8738, 8739, 9000};
  ListeDiParole lists;
  lists[12] = NumberedWords(9000, 15);
  for (const int n : withQH) {
    const std::size_t place = n % 2 == 0 ? 0 : 14;
    lists[12][static_cast<std::size_t>(n) - 1].replace(place, 1, n % 2 == 0 ? "H" : "Q");
  }
  ASSERT_EQ(ScriviDizionario(dictionary.PercorsoDizionario(), lists).errore, "");
  ASSERT_TRUE(ApriDizionario(dictionary));
  std::vector<int> others;
  for (int n = 1; n <= 9000; ++n) {
    if (std::find(withQH.begin(), withQH.end(), n) == withQH.end()) others.push_back(n);
  }
  EXPECT_EQ(Numbers(std::string(15, ' ')), others);
  EXPECT_EQ(Numbers("              Q"), (std::vector<int>{1, 4369, 8739}));
  EXPECT_EQ(Numbers("H              "), (std::vector<int>{2, 4370, 8738, 9000}));
  EXPECT_EQ(dictionary.LeggiParola(4370, 15).front(), 'H');
}

TEST_F(WordChoiceTest, DrawTakesOneOfTheCandidates) {
  const Words words = {"ALA", "APE", "ARA", "ORA", "UVA"};
  OpenDictionary(words);
  struct Row {
    const char* pattern;
    double draw;
    const char* word;
  };
  const Row rows[] = {
      // With 1, 2 or 4 candidates a number below 1 can be rounded up on its way to a place.
      {"   ", 0, "ALA"},   {"   ", 0.199, "ALA"},        {"   ", 0.5, "ARA"},
      {"   ", 0.8, "UVA"}, {"   ", JustBelowOne, "UVA"}, {"  A", 0.5, "ORA"},
      {"UV ", 0, "UVA"},   {"UV ", JustBelowOne, "UVA"}, {" R ", JustBelowOne, "ORA"},
  };
  for (const Row& row : rows) {
    ASSERT_TRUE(choice.CercaCandidati(row.pattern));
    machine.draws = {row.draw};
    EXPECT_EQ(choice.EstraiParola(3), row.word) << row.pattern << ", " << row.draw;
  }
}

TEST_F(WordChoiceTest, RandomLetterIsOneOfTheTwentyOne) {
  std::string letters;
  for (int i = 0; i < 21; ++i) {
    machine.draws = {(i + 0.01) / 21, (i + 0.99) / 21};
    letters += choice.LetteraCasuale();
    EXPECT_EQ(choice.LetteraCasuale(), letters.back());
  }
  EXPECT_EQ(letters, "ABCDEFGHILMNOPQRSTUVZ");
  machine.draws = {0, JustBelowOne};
  EXPECT_EQ(choice.LetteraCasuale(), 'A');
  EXPECT_EQ(choice.LetteraCasuale(), 'Z');
}

TEST_F(WordChoiceTest, WordExistsWhenAnyWordFits) {
  OpenDictionary({"APE", "QUOTA", "SOVRAPPOSIZIONI"});
  for (const char* pattern : {"APE", "A.E", " PE", "   ", "...", ".....", "     ", "Q   A",
                              "SOVRAPPOSIZIONI", ".OVRAPPOSIZIONI", "..............."}) {
    EXPECT_EQ(choice.ParolaEsiste(pattern), Vero) << pattern;
  }
  for (const char* pattern : {"", "A", "AP", "..", "APA", "ape", "A*E", "....", "CARTA",
                              "SOVRAPPOSIZIONA", "................", "SOVRAPPOSIZIONIS"}) {
    EXPECT_EQ(choice.ParolaEsiste(pattern), Falso) << pattern;
  }
}

TEST_F(WordChoiceTest, CrossingsThatAreCompleteMustBeWords) {
  OpenDictionary({"APE", "CASA", "SOLE"});
  struct Row {
    const char* name;
    Words drawing;
    Slot slot;
    bool passed;
    std::string crossing;
  };
  const std::string sixteen = "ABCDEFGHILMNOPQR";
  Words tall;
  for (const char letter : sixteen) {
    tall.push_back({letter, '.'});
  }
  const Row rows[] = {
      {"word of 3", {"A..", "P..", "E.."}, {{1, 2}, 1, 3}, true, "APE"},
      {"no word of 3", {"A..", "X..", "E.."}, {{1, 2}, 1, 3}, false, "AXE"},
      {"no word of 2", {"XY.", "ZK."}, {{1, 1}, 1, 3}, true, ""},
      {"word of 4", {"C..", "A..", "S..", "A.."}, {{1, 4}, 1, 3}, true, "CASA"},
      {"no word of 4", {"C..", "A..", "S..", "E.."}, {{1, 4}, 1, 3}, false, "CASE"},
      {"16 letters", tall, {{1, 7}, 1, 2}, false, sixteen},
      {"open", {"X..", "X..", "...", "X.."}, {{1, 2}, 1, 3}, true, ""},
      {"open and complete", {".XS", ".YO", ".ZL", "..E"}, {{1, 1}, 1, 3}, true, "SOLE"},
      {"the first that fails", {"CXS", "AXO", "SXX", "AXE"}, {{1, 1}, 1, 3}, false, "XXXX"},
      {"below a black cell", {"X..", "#..", "A..", "P..", "E.."}, {{1, 5}, 1, 3}, true, "APE"},
      {"above a black cell", {"A..", "P..", "E..", "#..", "X.."}, {{1, 1}, 1, 3}, true, "APE"},
      {"no run", {"#..", "X..", "#.."}, {{1, 2}, 1, 3}, true, ""},
      {"vertical slot", {"#....", "#CASE", "#...."}, {{4, 1}, 2, 3}, false, "CASE"},
      {"vertical slot, from column 1", {"SOLE", "..#."}, {{4, 1}, 2, 2}, true, "SOLE"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const GrigliaInEstrazione grid(DrawnCrossword(row.drawing));
    const EsitoIncroci outcome = choice.ProvaIncroci(grid, row.slot);
    EXPECT_EQ(outcome.passati, row.passed);
    EXPECT_EQ(outcome.incrocio, row.crossing);
  }
}

TEST_F(WordChoiceTest, LengthWithoutASectionAndMissingDictionaryAreTold) {
  OpenDictionary({"APE"});
  Words told;
  for (const char* pattern : {"  ", "                ", "   "}) {
    ASSERT_TRUE(choice.CercaCandidati("A  "));
    if (std::string_view(pattern) == "   ")
      std::filesystem::remove(dictionary.PercorsoDizionario());
    EXPECT_FALSE(choice.CercaCandidati(pattern));
    EXPECT_EQ(choice.NumCandidati(), 0);
    told.push_back(choice.Errore());
  }
  EXPECT_EQ(told,
            (Words{"Errore: Parola con 2 caratteri non disponibile!.",
                   "Errore: Parola con 16 caratteri non disponibile!.",
                   WithCause("Impossibile leggere il dizionario.", InFolder("LessicoItaliano.dat"),
                             "il file o la cartella non esiste")}));
  EXPECT_EQ(choice.ParolaEsiste("APE"), Falso);
}

TEST_F(WordChoiceTest, ADictionaryThatFailsToBeReadIsNotOneWithoutWords) {
  OpenDictionary({"APE", "ORA"});
  std::filesystem::remove(dictionary.PercorsoDizionario());
  std::filesystem::create_symlink("/proc/self/mem",
                                  dictionary.PercorsoDizionario());  // EIO at its start
  const GrigliaInEstrazione grid(DrawnCrossword({"APE", "#R#", "#A#"}));
  EXPECT_FALSE(choice.CercaCandidati("A  "));
  EXPECT_EQ(dictionary.LeggiParola(1, 3), "");
  EXPECT_FALSE(choice.ProvaIncroci(grid, {{1, 1}, Orizzontale, 3}).letti);
  EXPECT_FALSE(ApriDizionario(dictionary));
  const std::string told =
      WithCause("Impossibile leggere il dizionario.", dictionary.PercorsoDizionario(),
                "la lettura non è riuscita"_cp);
  EXPECT_EQ(choice.Errore(), told);
  EXPECT_EQ(user.TakeTexts(), Words{told});
}

}  // namespace
}  // namespace telarium
