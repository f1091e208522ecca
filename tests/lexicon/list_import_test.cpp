#include "lexicon/list_import.h"

#include <gtest/gtest.h>

#include "lexicon/own_words.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

// "CASA 60 casa, ..." with "-" for no score; the cause where there is no list.
std::string Imported(std::string_view text, LetturaPunteggi reading = LetturaPunteggi::Riconosci) {
  std::string cause;
  const auto list = InterpretaElenco(text, reading, cause);
  if (!list) return cause;
  std::string words;
  for (std::size_t i = 0; i < list->parole.Quante(); ++i) {
    const auto [word, spelling, score] = list->parole[i];
    words += Unisci(words.empty() ? "" : ", ", word, ' ');
    words += score == ElencoParole::SenzaPunteggio ? "-" : std::to_string(score);
    if (spelling != word) words += Unisci(' ', spelling);
  }
  for (const auto& [word, clue] : list->definizioni)
    words += Unisci(" [", list->parole[word].parola, ": ", clue, ']');
  return words;
}

TEST(ListImport, LinesOfManyKindsBecomeWords) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"CASA\r\nORO\rPANE\n\n# nota\n", "CASA -, ORO -, PANE -"},
      {"CASA;60\nORO;7\nPANE;", "CASA 60, ORO 7, PANE -"},
      {"CASA\t60\nLUNA PARK\t55", "CASA 60, LUNAPARK 55 LUNA PARK"},
      {"word,score\nCASA,60\n\"L'Aquila\", 70 \n", "CASA 60, LAQUILA 70 L'Aquila"},
      {"Parola;Punteggio;Definizione\nCASA;60;Si abita; si vende\nORO;51;\nCASA;61;Focolare",
       "CASA 61, ORO 51 [CASA: Si abita; si vende] [CASA: Focolare]"},
      // A comma within a clue is no separator.
      {"CASA;60;Bella, grande\nORO;70;Au, in breve",
       "CASA 60, ORO 70 [CASA: Bella, grande] "
       "[ORO: Au, in breve]"},
      // Encodings.
      {"\xEF\xBB\xBF"
       "CITT\xC3\x80;60\nFOLLI;9",
       "CITTA 60 CITT\xC0, FOLLI 9"},
      {"citt\xC3\xA0\nperch\xC3\xA9\nguast\xE0\n", "CITTA - citt\xE0, PERCHE - perch\xE9"},
      {"citt\xE0\nl\x92"
       "aquila\n",
       "CITTA - citt\xE0, LAQUILA - l\x92"
       "aquila"},
      {"\xC5\xA0koda;80", "SKODA 80 \x8Akoda"},
      {"\xC5\x81\xC3\xB3"
       "d\xC5\xBA;80",
       "LODZ 80"},
      // Scales: told by the highest score.
      {"CASA;50\nORO;7", "CASA 100, ORO 14"},
      {"CASA;51\nORO;7", "CASA 51, ORO 7"},
      {"CASA;0\nORO;0", "CASA 0, ORO 0"},
      // Refused.
      {"", ""},
      {"\n# nota\n", ""},
      {"\xFF\xFE"
       "C\0A\0",
       "la lista è in UTF-16, o non è un testo: va salvata in UTF-8"_cp},
      {{"C\0A\0S\0A\0", 8}, "la lista è in UTF-16, o non è un testo: va salvata in UTF-8"_cp},
      {"A\nB2\n", "la lista non contiene parole, solo 2 righe d'altro"},
  };
  for (const auto& [text, words] : rows)
    EXPECT_EQ(Imported(text), words) << text;
  EXPECT_EQ(Imported("CASA;50\nORO;7", LetturaPunteggi::ComeSono), "CASA 50, ORO 7");
  std::string cause;
  EXPECT_FALSE(ImportaElenco("\xEF\xBB\xBF\r\n", cause));
  EXPECT_EQ(cause, "la lista è vuota"_cp);
}

TEST(ListImport, TheReportCountsWhatWasLeftOut) {
  std::string cause;
  const std::string tooLong(54, 'A');
  const auto list = ImportaElenco(
      Unisci("# lista\nCASA;40\ncasa;50\nORO;101\nX;3\n", tooLong, ";2\nPANE;-1\nRE;0\nM1;2\n"),
      cause);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->resoconto.aZero, 1);
  EXPECT_EQ(TestoResoconto(*list),
            "8 righe: 2 parole, 1 doppia, 5 righe scartate (la prima: 4). I punteggi vanno da 0 a "
            "50 e sono stati raddoppiati.");
  EXPECT_EQ(TestoResoconto(*ImportaElenco("CASA;70;Ci si vive\n", cause)),
            "1 riga: 1 parola, 0 doppie, 0 righe scartate. I punteggi vanno da 0 a 100. Le "
            "definizioni sono 1.");
  EXPECT_EQ(TestoResoconto(*ImportaElenco("CASA", cause)),
            "1 riga: 1 parola, 0 doppie, 0 righe scartate. Non ci sono punteggi.");
}

class OwnWords : public TelariumTest {
 protected:
  ParoleMie Read() {
    std::string cause;
    auto own = ParoleMie::Leggi(CartellaProgramma, cause);
    EXPECT_TRUE(own) << cause;
    return own.value_or(ParoleMie());
  }
  std::string Written(const ParoleMie& own) {
    EXPECT_FALSE(own.Scrivi(CartellaProgramma));
    return ReadFile(InFolder(ParoleMie::NomeFile));
  }
};

TEST_F(OwnWords, WhatIsNotChangedIsKeptByteByByte) {
  ParoleMie own = Read();
  EXPECT_EQ(own.Elenco().Quante(), 0u);
  EXPECT_TRUE(own.Imposta("citt\xE0", 70) && own.Imposta("l'aquila"));
  EXPECT_FALSE(own.Imposta("x", 3) || own.Imposta("a2c", 3) || own.Togli("NESSUNA"));
  EXPECT_EQ(Written(own), "citt\xC3\xA0;70\nl'aquila\n");

  constexpr std::string_view file =
      "# mie\r\n\r\nCitt\xE0 ; 70\r\nsconosciuta = 3\r\nCULO;0\r\nORO;200\r\nORO;7;nota\r\noro;9";
  std::filesystem::remove(InFolder(ParoleMie::NomeFile));
  WriteFile("Parole_Mie.txt", file);
  own = Read();
  EXPECT_EQ(own.Testo(), file);
  const ElencoParole list = own.Elenco();
  ASSERT_EQ(list.Quante(), 3u);
  EXPECT_EQ(list[*list.Cerca("ORO")].punteggio, 9);
  EXPECT_EQ(list[*list.Cerca("CITTA")].grafia, "Citt\xE0");
  EXPECT_EQ(own.Vietate(), InsiemeDiParole{"CULO"});
  EXPECT_EQ(own.RigheIgnorate().quante, 2);
  EXPECT_EQ(own.RigheIgnorate().prima, 4);
  own.Imposta("PERCH\xC9", 50);
  own.Imposta("culo", 1);
  EXPECT_TRUE(own.Togli("CITTA"));
  EXPECT_FALSE(own.Togli(""));
  EXPECT_FALSE(own.Scrivi(CartellaProgramma));
  EXPECT_EQ(ReadFile(InFolder("Parole_Mie.txt")),
            "# mie\r\n\r\nsconosciuta = 3\r\nculo;1\r\nORO;200\r\nORO;7;nota\r\noro;9\r\n"
            "PERCH\xC9;50\r\n");
  EXPECT_TRUE(own.Vietate().empty());
}

TEST_F(OwnWords, AListThatCannotBeReadIsNone) {
  std::filesystem::create_directory(InFolder(ParoleMie::NomeFile));
  std::string cause;
  EXPECT_TRUE(ParoleMie::Leggi(CartellaProgramma, cause)) << "a folder is no list";
  std::filesystem::remove(InFolder(ParoleMie::NomeFile));
  std::filesystem::create_symlink("/dev/null", InFolder(ParoleMie::NomeFile));
  EXPECT_FALSE(ParoleMie::Leggi(CartellaProgramma, cause));
  EXPECT_TRUE(cause.starts_with("L'elenco delle parole proprie non si può leggere.\n"_cp)) << cause;
  std::filesystem::remove(InFolder(ParoleMie::NomeFile));
  WriteFile(ParoleMie::NomeFile, std::string_view("C\0U\0L\0O\0;\0"
                                                  "0\0",
                                                  12));
  EXPECT_FALSE(ParoleMie::Leggi(CartellaProgramma, cause)) << "its bans would be lost";
}

}  // namespace
}  // namespace telarium
