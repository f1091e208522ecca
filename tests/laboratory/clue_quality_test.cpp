#include "laboratory/clue_quality.h"

#include <gtest/gtest.h>

#include "platform/codepage.h"

namespace telarium {
namespace {

using Q = QualitaDefinizione;

TEST(ClueQuality, WordsAreFoldedAndKeepTheirPlace) {
  const std::string clue = DaUtf8("L'«Arià» del 25, più  Œdipo!");
  std::string folded, whole;
  for (const auto& [text, word] : ParoleDi(clue)) {
    folded += word + ' ';
    whole += std::string(text) + ' ';
  }
  EXPECT_EQ(folded, "L ARIA DEL 25 PIU OEDIPO ");
  EXPECT_EQ(AUtf8(whole), "L Arià del 25 più Œdipo ");
  EXPECT_TRUE(ParoleDi(" ?! ").empty());
}

TEST(ClueQuality, FillersAndSingleSynonymsSayLittle) {
  const struct {
    std::string_view clue;
    Q quality;
  } cases[] = {
      {"Esclamazione", Q::Riempitiva},
      {"Un pronome", Q::Riempitiva},
      {"Nome di donna.", Q::Riempitiva},
      {"Avverbio di quantit\xE0", Q::Riempitiva},
      {"...", Q::Riempitiva},
      {"Il", Q::Debole},
      {"Gomene", Q::Debole},
      {"L'abitazione", Q::Debole},
      {"Nome di donna in un'opera", Q::Buona},
      {"Grossa fune", Q::Buona},
  };
  for (const auto& [clue, quality] : cases)
    EXPECT_EQ(QualitaDi(clue), quality) << clue;
}

TEST(ClueQuality, PatternIsALetterPlayOrThreeWords) {
  const struct {
    std::string_view clue, opening;  // an empty one: no pattern
  } cases[] = {
      {"In fondo alla strada", "In fondo a"},
      {"IN FONDO AL MAR", "In fondo a"},
      {"L'inizio dell'opera", "Inizio di"},
      {"Nel cuore degli amici", "Nel cuore di"},
      {"Un po' d'aria", "Un po' di"},
      {"Le pari del cane", "Le pari di"},
      {"Mezza giornata", "Mezza"},
      {"Met\xE0 casa", "Met\xE0"},
      {"Mezza giornata di lavoro", "Mezza giornata di"},
      {"Meta turistica", ""},
      {"In fondo a", "In fondo a"},
      {"\xABIn\xBB fra l'erba", "\xABIn\xBB fra l"},
      {"Due parole", ""},
  };
  for (const auto& [clue, opening] : cases) {
    const auto pattern = SchemaDi(clue);
    EXPECT_EQ(pattern ? pattern->apertura : "", opening) << clue;
  }
  EXPECT_EQ(SchemaDi("Il pi\xF9 alto monte")->chiave, SchemaDi("IL PIU ALTO")->chiave);
  EXPECT_NE(SchemaDi("La capitale del Togo")->chiave, SchemaDi("La capitale della Cina")->chiave);
}

TEST(ClueQuality, StemIsFiveLettersThatAreNoCommonPrefix) {
  const struct {
    std::string_view one, other;
    bool akin;
  } cases[] = {
      {"CHIUSO", "CHIUSURA", true},         {"CASA", "CASALE", false},
      {"CASALE", "CASALINGA", true},        {"PORTA", "PORTA", true},
      {"INTERNO", "INTERNAZIONALE", false}, {"INTERESSE", "INTERESSI", true},
      {"SUPERIORE", "SUPERARE", false},     {"SUPER", "SUPERIORE", true},
      {"CONTRATTO", "CONTRABBANDO", false}, {"CONTRATTO", "CONTRATTARE", true},
      {"CONFINE", "CONFIDENZA", false},     {"COMUNE", "COMUNALE", true},
      {"COMPAGNO", "COMPASSIONE", false},   {"AUTOMA", "AUTOMATICO", true},
      {"AUTOSTRADA", "AUTOSTOP", false},    {"DISCO", "DISCOTECA", true},
      {"TRASPORTO", "TRASPARENTE", false},  {"PREMIO", "PREMIARE", true},
      {"POLIZIA", "POLIZZA", false},        {"POLIZIA", "POLIZIOTTO", true},
  };
  for (const auto& [one, other, akin] : cases) {
    EXPECT_EQ(StessaRadice(one, other), akin) << one << ' ' << other;
    EXPECT_EQ(StessaRadice(other, one), akin) << other << ' ' << one;
  }
}

}  // namespace
}  // namespace telarium
