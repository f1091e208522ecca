#include "clues/encyclopedia_rows.h"

#include <filesystem>

#include "clues/sqlite_database.h"
#include "support/clue_store.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

class EncyclopediaRows : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    MakeStore("CASA\tF\tAbitazione\nCASA\tF\tDimora\nARIA\tF\tSi respira\nZETA\tD\tUltima\n");
    rows.Apri();
  }

  std::string Word() { return AUtf8(rows.Testo(CampoParole::Parola)); }

  void Set(CampoParole field, std::string_view text) { rows.Imposta(field, text); }

  // All words in their order, the current one in brackets.
  std::string Walk() {
    std::string words;
    for (int p = 1; p <= rows.NumeroRighe(); ++p) {
      const std::string word = AUtf8(rows.Testo(p, CampoParole::Parola));
      words += p == rows.Posizione() ? '[' + word + ']' : word;
      words += ' ';
    }
    return words;
  }

  // Changes the store behind the back of the rows.
  void Behind(const char* sql) const { BaseDati(InFolder("telarium1.mdb")).Esegui(sql); }

  RigheEnciclopedia rows;
};

TEST_F(EncyclopediaRows, MovesWithinTheSet) {
  EXPECT_EQ(Walk(), "[ARIA] CASA ZETA ");
  EXPECT_FALSE(rows.Indietro());
  EXPECT_EQ(rows.Posizione(), 1);
  EXPECT_TRUE(rows.Avanti());
  EXPECT_EQ(rows.Testo(CampoParole::Facili), "Abitazione\r\nDimora");
  EXPECT_EQ(rows.Testo(CampoParole::Difficili), "");
  EXPECT_TRUE(rows.Ultimo());
  EXPECT_FALSE(rows.Avanti());
  EXPECT_EQ(Walk(), "ARIA CASA [ZETA] ");
  EXPECT_TRUE(rows.Primo());
  EXPECT_EQ(Word(), "ARIA");
}

TEST_F(EncyclopediaRows, SearchesForwardFromTheCurrentRow) {
  Behind("INSERT INTO Parole VALUES ('citt\u00E0 alta', NULL, NULL), ('CITT\u00C0', NULL, NULL)");
  rows.Rileggi();
  EXPECT_EQ(Walk(), "[ARIA] CASA CITT\u00C0 ZETA citt\u00E0 alta ");
  EXPECT_TRUE(rows.CercaInizio("a")) << "the current row is one of those";
  EXPECT_EQ(rows.Posizione(), 1);
  EXPECT_TRUE(rows.CercaInizio("Citt\xE0"));
  EXPECT_EQ(rows.Posizione(), 3);
  EXPECT_TRUE(rows.CercaInizio("CITT\xC0 "));
  EXPECT_EQ(rows.Posizione(), 5);
  EXPECT_FALSE(rows.CercaInizio("CASA")) << "it stands before";
  EXPECT_EQ(rows.Posizione(), 5);
  EXPECT_THROW(rows.CercaInizio("L'"), ErroreEnciclopedia);
}

TEST_F(EncyclopediaRows, StoresWhatWasSetWhenTheRowIsLeft) {
  Set(CampoParole::Facili, "Uno\nDue\rTre\r\n");
  EXPECT_EQ(rows.Testo(CampoParole::Facili), "Uno\r\nDue\r\nTre\r\n");
  EXPECT_EQ(Stored("ARIA"), "Si respira");
  rows.Avanti();
  EXPECT_EQ(Stored("ARIA"), "Uno\r\nDue\r\nTre\r\n");
  Set(CampoParole::Facili, "");
  Set(CampoParole::Difficili, "Dura");
  Set(CampoParole::Parola, "CASA\nMIA");
  rows.Registra();
  EXPECT_EQ(Stored("CASA MIA"), "-") << "an emptied family is null";
  EXPECT_EQ(Stored("CASA MIA", true), "Dura");
  EXPECT_EQ(Walk(), "ARIA [CASA MIA] ZETA ");
  Set(CampoParole::Facili, "Mai");
  rows.Imposta(CampoParole::Facili, std::nullopt);
  Set(CampoParole::Difficili, "Neanche");
  rows.Annulla();
  rows.Ultimo();
  EXPECT_EQ(Stored("CASA MIA", true), "Dura");
}

TEST_F(EncyclopediaRows, LeavesTheFieldsThatWereNotChangedToTheByte) {
  Behind(
      "UPDATE Parole SET DEFINIZ_FACILE = 'Alfa \u03B1' || char(10) || 'due' WHERE PAROLA = "
      "'ARIA'");
  rows.Rileggi();
  EXPECT_EQ(rows.Testo(CampoParole::Facili), "Alfa ?\ndue");
  Set(CampoParole::Difficili, "Difficile");
  Set(CampoParole::Parola, "ARIA");
  rows.Avanti();
  BaseDati file(InFolder("telarium1.mdb"));
  Istruzione greek(file,
                   "SELECT count(*) FROM Parole WHERE DEFINIZ_FACILE = 'Alfa \u03B1' || char(10) ||"
                   " 'due' AND DEFINIZ_DIFFIC = 'Difficile'");
  ASSERT_TRUE(greek.Passo());
  EXPECT_EQ(greek.Intero(0), 1);
}

TEST_F(EncyclopediaRows, ANewRowStandsAtTheEndUntilTheNextReading) {
  rows.Avanti();
  const NumeroRiga casa = rows.Segnalibro();
  rows.Nuova();
  EXPECT_EQ(rows.Posizione(), 4);
  EXPECT_EQ(rows.NumeroRighe(), 3);
  EXPECT_EQ(Word(), "");
  Set(CampoParole::Parola, "BAR");
  rows.Annulla();
  EXPECT_EQ(Walk(), "ARIA [CASA] ZETA ");

  rows.Nuova();
  EXPECT_TRUE(rows.Indietro()) << "an untouched one is dropped by a move";
  EXPECT_EQ(Walk(), "ARIA CASA [ZETA] ");
  rows.Nuova();
  Set(CampoParole::Parola, "BAR");
  EXPECT_TRUE(rows.Indietro());
  EXPECT_EQ(Walk(), "ARIA CASA [ZETA] BAR ");
  EXPECT_EQ(Stored("BAR"), "-");
  rows.Nuova();
  rows.Registra();
  EXPECT_EQ(rows.Posizione(), 5) << "one is stored empty when that is asked for";
  EXPECT_TRUE(rows.Torna(casa));
  EXPECT_EQ(Word(), "CASA");
  rows.Rileggi();
  EXPECT_EQ(Walk(), "[] ARIA BAR CASA ZETA ");
  rows.Elimina();
  EXPECT_EQ(Walk(), "[ARIA] BAR CASA ZETA ");
}

TEST_F(EncyclopediaRows, DeletesDownToNothing) {
  const NumeroRiga aria = rows.Segnalibro();
  rows.Ultimo();
  rows.Elimina();
  EXPECT_EQ(Walk(), "ARIA [CASA] ");
  EXPECT_EQ(Stored("ZETA"), "?");
  rows.Primo();
  rows.Elimina();
  EXPECT_EQ(Walk(), "[CASA] ");
  EXPECT_FALSE(rows.Torna(aria));
  Set(CampoParole::Facili, "Dropped with its row");
  rows.Elimina();
  EXPECT_FALSE(rows.HaRiga() || rows.Primo() || rows.Ultimo() || rows.Avanti() || rows.Indietro());
  EXPECT_FALSE(rows.CercaInizio(""));
  EXPECT_EQ(Word(), "");
  EXPECT_EQ(rows.Segnalibro(), 0);
  Set(CampoParole::Facili, "Nowhere");
  rows.Registra();
  EXPECT_THROW(rows.Elimina(), ErroreEnciclopedia);
  rows.Nuova();
  Set(CampoParole::Parola, "BAR");
  rows.Registra();
  EXPECT_EQ(Walk(), "[BAR] ");
}

TEST_F(EncyclopediaRows, AnErrorLeavesTheRowAndWhatWasSet) {
  Behind("DELETE FROM Parole WHERE PAROLA = 'ARIA'");
  Set(CampoParole::Parola, "ALTRA");
  EXPECT_THROW(rows.Avanti(), ErroreEnciclopedia);
  EXPECT_EQ(rows.Posizione(), 1);
  EXPECT_EQ(Word(), "ALTRA");
  EXPECT_THROW(rows.Testo(CampoParole::Facili), ErroreEnciclopedia);
  rows.Annulla();
  EXPECT_TRUE(rows.Avanti());

  rows.Chiudi();
  EXPECT_EQ(rows.NumeroRighe(), 0);
  EXPECT_THROW(rows.Nuova(), ErroreEnciclopedia);
  std::filesystem::remove(InFolder("telarium1.mdb"));
  EXPECT_THROW(rows.Rileggi(), ErroreEnciclopedia);
  EXPECT_FALSE(rows.Aperta());
  MakeStore("SOLE\tF\tBrilla\n");
  rows.Rileggi();
  EXPECT_EQ(Walk(), "[SOLE] ");
}

TEST_F(EncyclopediaRows, NothingIsWrittenToRowsOfAStoreThatWasMadeAnew) {
  const EnciclopediaAperta open = ApriEnciclopedia();
  ASSERT_TRUE(open->CercaParola("ARIA"));
  MakeStore("ALTRA\tF\tx\nBOA\tF\ty\nCASA\tF\tz\n");
  EXPECT_THROW(open->LeggiFacili(), ErroreEnciclopedia);
  EXPECT_THROW(open->ScriviFacili("w"), ErroreEnciclopedia);
  EXPECT_THROW(rows.Elimina(), ErroreEnciclopedia) << "it would be another word's row";
  Set(CampoParole::Difficili, "w");
  EXPECT_THROW(rows.Registra(), ErroreEnciclopedia);
  rows.Annulla();
  rows.Rileggi();
  EXPECT_EQ(Walk(), "[ALTRA] BOA CASA ");
  EXPECT_EQ(Stored("ALTRA") + Stored("ALTRA", true), "x-");
}

}  // namespace
}  // namespace telarium
