#include "laboratory/remedies.h"

#include <gtest/gtest.h>

#include "composer/reasons.h"
#include "laboratory/small_lexicon.h"
#include "lexicon/lexicon_builder.h"
#include "platform/text.h"
#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Lines = std::vector<std::string>;

struct Impossible {
  std::string name;
  Lines rows;
  Lines words;  // as SmallLayer has them
  std::string remedies;
  std::string rules = "severe";
  int least = 0;
  std::optional<int> two = {};
  Lines kit = {};
};

SceltaComposizione ChoiceOf(const Impossible& composition) {
  SceltaComposizione choice;
  choice.parole.regole = *RegolamentoDiNome(composition.rules);
  choice.parole.livelli.fill(composition.least);
  choice.due = composition.two;
  return choice;
}

// "nera 3 1; livello 40", as they are printed.
std::string Told(const std::vector<Rimedio>& remedies) {
  std::string told;
  for (const auto& [kind, cell, level, name] : remedies) {
    const std::string place = Unisci(cell.colonna, ' ', cell.riga);
    const std::array<std::string, 5> texts = {"libera " + place, "nera " + place,
                                              Unisci("livello ", level), "regole " + name,
                                              "lessico " + name};
    told += (told.empty() ? "" : "; ") + texts.at(static_cast<std::size_t>(kind));
  }
  return told;
}

class Remedies : public TelariumTest {
 protected:
  std::vector<Rimedio> Find(const Impossible& composition, const Limiti& limits) {
    Lessico lexicon;
    lexicon.Aggiungi(std::make_shared<SmallLayer>(composition.words), Origine::Lingua);
    lexicon.Aggiungi(std::make_shared<SmallLayer>(composition.kit), Origine::Sigle);
    const SceltaComposizione choice = ChoiceOf(composition);
    std::string message;
    const auto prepared =
        PreparaComposizione(DrawnCrossword(composition.rows), choice, lexicon, nullptr, message);
    EXPECT_TRUE(prepared) << message;
    std::vector<Slot> guilty = prepared->dueDiTroppo;
    if (guilty.empty()) {
      const Riempimento proof = Componi(prepared->problema, {});
      EXPECT_EQ(proof.esito, Esito::Impossibile);
      for (const int slot : TrovaColpevoli(prepared->problema, proof, {}).slot)
        guilty.push_back(prepared->slot.at(static_cast<std::size_t>(slot)));
    }
    return TrovaRimedi(*prepared, choice, guilty, lexicon, nullptr,
                       {.lessici = InFolder("lexicon"), .programma = CartellaProgramma}, limits);
  }

  void Make(const std::string& name, std::string_view source) {
    std::string cause;
    const auto bytes = CostruisciLessico(source, cause);
    ASSERT_TRUE(bytes) << cause;
    WriteFile("lexicon/" + name + ".lexicon", *bytes);
  }
};

// A word for each length that a black leaves of a row of 25, two where both halves are as long.
Lines ForTwentyFive() {
  Lines words = {std::string(25, 'A') + " 10", std::string(12, 'B') + " 50"};
  for (std::size_t length = 3; length <= 24; ++length)
    words.push_back(std::string(length, 'A') + " 50");
  return words;
}

TEST_F(Remedies, AreAllThatWorkAndTheSmallestFirst) {
  const std::vector<Impossible> cases = {
      {.name = "one black",
       .rows = {"....."},
       .words = {"ZUCCHERO 50"},
       .remedies = "nera 3 1",
       .kit = {"RE 90", "AL 80"}},
      {"one letter", {".X.A"}, {"CASA 50"}, "libera 2 1"},
      {"a letter or a black", {"..X.A"}, {"CASTA 50", "PAX 50"}, "libera 3 1; nera 4 1"},
      {"a level", {"...."}, {"CASA 41", "CASE 30"}, "livello 41", "severe", 60},
      {"the next rules",
       {"..."},
       {"AMO 60 v.ind.pres.1s amare", "BCD 50 +gioco"},
       "regole settimanali"},
      {"the next rules but one", {"...."}, {"SONO 60 v.ind.pres.1s essere"}, "regole libere"},
      {"two letters too many", {"..#...."}, {"CASA 50"}, "nera 1 1; nera 2 1", "severe", 0, 0},
      {.name = "the best black first",
       .rows = {"......"},
       .words = {"SALE 50", "ALA 50", "ORSO 50"},
       .remedies = "nera 3 1; nera 4 1; nera 2 1; nera 5 1",
       .kit = {"RE 90", "AL 80"}},
      {"more than ten",
       {std::string(25, '.')},
       ForTwentyFive(),
       "nera 1 1; nera 25 1; nera 4 1; nera 5 1; nera 6 1; nera 7 1; nera 8 1; nera 9 1; "
       "nera 10 1; livello 10",
       "severe",
       20},
      {"none", {"...."}, {"ZUCCHERO 50"}, ""},
  };
  for (const Impossible& one : cases) {
    SCOPED_TRACE(one.name);
    EXPECT_EQ(Told(Find(one, {})), one.remedies);
    EXPECT_EQ(Told(Find(one, {.lavoratori = 2})), one.remedies);
  }
}

TEST_F(Remedies, OtherLanguagesAreOfferedWhereTheyAreInstalled) {
  const Impossible one = {"", {"...."}, {"ZUCCHERO 50"}, "", "libere"};
  EXPECT_EQ(Told(Find(one, {})), "nera 2 1; nera 3 1");
  std::filesystem::create_directory(InFolder("lexicon"));
  Make("italiano", "ala\t60\t\ts.f\n");
  Make("inglese", "song\t40\t\ts.s\n");
  Make("latino", "rosas\t40\t\ts.f\n");
  Make("sigle", "re\t95\t\ts.ms\n");
  EXPECT_EQ(Told(Find(one, {})), "nera 2 1; nera 3 1; lessico inglese");
}

TEST_F(Remedies, AStopEndsTheSearch) {
  std::stop_source stopped;
  stopped.request_stop();
  EXPECT_EQ(Told(Find({"", {"....."}, {"ALA 50"}, ""}, {.ferma = stopped.get_token()})), "");
}

}  // namespace
}  // namespace telarium
