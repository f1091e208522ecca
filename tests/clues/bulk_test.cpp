#include "clues/bulk.h"

#include <chrono>
#include <iterator>

#include "clues/import.h"
#include "clues/sqlite_database.h"
#include "model/words.h"
#include "platform/text.h"
#include "support/clue_store.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

std::string FetchReport(int horizontal, int vertical) {
  return Unisci(
      "L'operazione di recupero delle definizioni \xE8 terminata con "
      "successo.\r\nDall'enciclopedia "
      "sono state trovate e compilate N. ",
      horizontal, " definizioni orizzontali e N. ", vertical,
      " definizioni verticali. Cliccare sul bottone 'Vista tabellare' della barra principale per "
      "vedere le parole inserite.");
}

std::string MergeReport(std::string_view first, int words, int clues) {
  return Unisci(first, "\r\nSono state aggiunte ", words,
                " parole all'enciclopedia.\r\nSono state aggiornate ", clues,
                " definizioni all'enciclopedia aggiungendo nuovi termini.\r\n");
}

std::string SaveReport(int words, int clues) {
  return MergeReport(
      "Tutte le definizioni presenti in questo sdhema sono state salvate sull'enciclopedia con "
      "successo.",
      words, clues);
}

std::string ImportReport(int words, int clues) {
  return MergeReport(
      "Le definizioni prelevate dal file di Internet sono state salvate sull'enciclopedia con "
      "successo.",
      words, clues);
}

class BulkTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    Draw({"MELA", "A#.#", "RE#A"});
    SetClue(1, 1, Orizzontale, "vecchia");
    SetClue(1, 3, Orizzontale, "sovrano");
  }

  const std::string& MELA = Definizione(1, 1, Orizzontale);
  const std::string& MAR = Definizione(1, 1, Verticale);
  const std::string& L_ = Definizione(3, 1, Verticale);  // "L.", which is not complete
  const std::string& RE = Definizione(1, 3, Orizzontale);
  RecordingWindow window;
};

TEST_F(BulkTest, FetchDrawsFromTheFamiliesOfItsMode) {
  MakeStore("MELA\tF\tf1\nMELA\tF\tf2\nMELA\tD\td1\nMAR\tD\td2\n");
  ApriEnciclopedia()->AggiungiParola("L.", "no");
  SetClue(3, 1, Verticale, "resta");
  machine.draws = {0.99, 0.0};
  Prelevadefinizioni(ModoTutte);
  EXPECT_EQ(MELA, "d1");
  EXPECT_EQ(MAR, "d2");
  EXPECT_EQ(L_, "resta");
  EXPECT_EQ(RE, "sovrano") << "the encyclopedia does not know the word";
  machine.draws = {0.5, 0.5};
  Prelevadefinizioni(ModoFacili);
  EXPECT_EQ(MELA, "f2");
  EXPECT_EQ(MAR, "") << "known with hard clues alone: the empty clue, and counted";
  Prelevadefinizioni(ModoDifficili);
  EXPECT_EQ(MELA + MAR, "d1d2");
  EXPECT_EQ(user.TakeTexts(), (Texts{FetchReport(1, 1), FetchReport(1, 1), FetchReport(1, 1)}));
  EXPECT_EQ(user.pointerShapes.front(), PuntatoreClessidra);
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
  EXPECT_EQ(SchemaModificato, Vero) << "it counts at the saving question";
  EXPECT_TRUE(window.shown.empty());
}

TEST_F(BulkTest, ARowThatCannotBeReadCostsItsWordAloneAndIsTold) {
  MakeStore(Unisci("MAR\tF\t", std::string(9000, 'x'), "\nMELA\tF\tf\n"));
  std::string bytes = ReadFile(InFolder("telarium1.mdb"));
  // Behind the first page of the long clue there is none: its first bytes name it.
  const std::size_t page = bytes.find(std::string(4092, 'x')) / 4096 * 4096;
  bytes.replace(page, 4, "\x7F\xFF\xFF\xFF");
  WriteFile("telarium1.mdb", bytes);
  SetClue(1, 1, Verticale, "resta");
  Prelevadefinizioni(ModoFacili);
  EXPECT_EQ(MELA + MAR, "fresta");
  EXPECT_EQ(user.TakeTexts(),
            Texts{FetchReport(1, 0) + "\r\n1 parola non si \xE8 potuta cercare. Enciclopedia "
                                      "telarium1.mdb: il file \xE8 danneggiato."});
}

TEST_F(BulkTest, EveryClueHasTheSameChance) {
  MakeStore("MELA\tF\t0\nMELA\tF\t1\nMELA\tD\t2\nMELA\tD\t3\n");
  int drawn[4] = {};
  for (int n = 0; n < 2000; ++n) {
    ASSERT_TRUE(PrelevaTutte(ModoTutte));
    ++drawn[MELA.front() - '0'];
  }
  for (const int times : drawn)
    EXPECT_NEAR(times, 500, 100);
}

TEST_F(BulkTest, WithoutAStoreNothingChanges) {
  Prelevadefinizioni(ModoTutte);
  SalvaDefinizioni();
  Recupera_Definizioni();
  const std::string missing = "Enciclopedia telarium1.mdb: il file manca o non si pu\xF2 aprire.";
  EXPECT_EQ(user.TakeTexts(), (Texts{missing, missing, missing}));
  EXPECT_EQ(window.shown, (std::vector{Modale::Form6, Modale::Form6, Modale::Form6}));
  EXPECT_EQ(MELA, "vecchia");
  EXPECT_EQ(SchemaModificato, Falso);
}

TEST_F(BulkTest, EmptyGridFetchesNothingFromAStoreThatIsOpenedAllTheSame) {
  Draw({"##", "##"});
  MakeStore("");
  Prelevadefinizioni(ModoTutte);
  EXPECT_EQ(user.TakeTexts(), Texts{FetchReport(0, 0)});
}

TEST_F(BulkTest, AnEmptyGridWithoutAStoreIsToldOfIt) {
  Draw({"##", "##"});
  Prelevadefinizioni(ModoTutte);
  EXPECT_EQ(user.TakeTexts(),
            Texts{"Enciclopedia telarium1.mdb: il file manca o non si pu\xF2 aprire."});
}

TEST_F(BulkTest, WordsGoByColumnsAndAtACellTheHorizontalOneFirst) {
  Draw({"AB", "CD"});
  MakeStore("");
  const std::pair<Slot, const char*> words[] = {{{{1, 1}, Orizzontale, 2}, "AB"},
                                                {{{1, 1}, Verticale, 2}, "AC"},
                                                {{{1, 2}, Orizzontale, 2}, "CD"},
                                                {{{2, 1}, Verticale, 2}, "BD"}};
  for (const auto& [slot, word] : words)
    SetClue(slot.inizio.colonna, slot.inizio.riga, slot.direzione, "uno");
  SalvaDefinizioni();
  Texts stored;
  {
    BaseDati store(InFolder("telarium1.mdb"));
    Istruzione rows(store, "SELECT PAROLA FROM Parole ORDER BY rowid");
    while (rows.Passo())
      stored.push_back(rows.Testo(0).value_or("-"));
    EXPECT_EQ(stored, (Texts{"AB", "AC", "CD", "BD"}));
    store.Esegui("UPDATE Parole SET DEFINIZ_FACILE = 'uno' || char(13, 10) || 'due'");
  }
  for (std::size_t second = 0; second < std::size(words); ++second) {
    machine.draws.assign(std::size(words), 0);
    machine.draws[second] = 0.9;
    ASSERT_TRUE(PrelevaTutte(ModoFacili));
    for (std::size_t n = 0; n < std::size(words); ++n) {
      const auto& [cell, direction, length] = words[n].first;
      EXPECT_EQ(Definizione(cell.colonna, cell.riga, direction), n == second ? "due" : "uno");
    }
  }
  user.TakeTexts();
}

TEST_F(BulkTest, AStoreThatSomebodyTakesMeanwhileHoldsTheFetchUpOnce) {
  constexpr int rows = 5, wordsInARow = 10;
  std::vector<std::string> grid;
  for (int r = 0; r < rows; ++r) {
    grid.emplace_back();
    for (int n = 0; n < wordsInARow; ++n)
      grid.back() += n == 0 ? "MELA" : "#MELA";
    grid.push_back(std::string(grid.back().size(), '#'));
  }
  Draw(grid);
  MakeStore("MELA\tF\tf\n");
  BaseDati other(InFolder("telarium1.mdb"));
  machine.whenDrawing = [&] { other.Esegui("BEGIN EXCLUSIVE"); };
  const auto begun = std::chrono::steady_clock::now();
  Prelevadefinizioni(ModoFacili);
  // A second for each of the 49 other words would be far more.
  EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(25));
  const Texts told = user.TakeTexts();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_TRUE(told[0].starts_with(FetchReport(1, 0))) << told[0];
  EXPECT_NE(told[0].find("49 parole"), std::string::npos) << told[0];
}

TEST_F(BulkTest, SavingTwiceAddsNothingTheSecondTime) {
  MakeStore("MELA\tF\tLa pi\xC3\xB9 vecchia fra tutte\nRE\tD\tsovrano\n");
  SetClue(1, 1, Verticale, "nuova");
  SetClue(3, 1, Verticale, "non completa");
  SalvaDefinizioni();
  SalvaDefinizioni();
  EXPECT_EQ(user.TakeTexts(), (Texts{SaveReport(1, 1), SaveReport(0, 0)}));
  EXPECT_EQ(Stored("MELA"), "La più vecchia fra tutte") << "a part of a stored clue is there";
  EXPECT_EQ(Stored("RE"), "\r\nsovrano");
  EXPECT_EQ(Stored("MAR") + Stored("MAR", true), "nuova-");
  EXPECT_EQ(Stored("L."), "?");
  EXPECT_EQ(SchemaModificato, Falso);
}

TEST_F(BulkTest, ErrorWhileSavingKeepsWhatWasWritten) {
  MakeStore("");
  SetClue(1, 3, Orizzontale, "r");
  SetClue(1, 1, Verticale, "m");
  BaseDati(InFolder("telarium1.mdb"))
      .Esegui(
          "DROP TABLE Parole; CREATE TABLE Parole (PAROLA TEXT CHECK (PAROLA <> 'RE'),"
          " DEFINIZ_FACILE TEXT, DEFINIZ_DIFFIC TEXT)");
  SalvaDefinizioni();
  const Texts texts = user.TakeTexts();
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0], "Enciclopedia telarium1.mdb: il file non ammette questi dati.");
  EXPECT_EQ(Stored("MELA") + Stored("MAR"), "vecchiam");
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
}

TEST_F(BulkTest, ImportTakesPairsOfLines) {
  MakeStore("DURA\tD\tche fatica\nMELA\tF\tIl frutto\n");
  WriteFile("DEFINIZIONI.TXT",
            "  CASA  \r\n Dove si sta \r\nCASA\nDOVE si sta\rCASA\r\nTetto\r\nMELA\r\nfrutto\r\n"
            "DURA\r\nche fatica\r\nL'ORO\r\nx\r\nUN PO\r\nx\r\nA-B\r\nx\r\nA,B\r\nx\r\nA.B\r\nx\r\n"
            "\r\nsenza parola\r\nVUOTA\r\n   \r\nminuta\r\nCitt\xE0\r\nULTIMA");
  Recupera_Definizioni();
  Recupera_Definizioni();
  EXPECT_EQ(user.TakeTexts(), (Texts{ImportReport(2, 2), ImportReport(0, 0)}));
  EXPECT_EQ(Stored("CASA"), "Dove si sta\r\nTetto");
  EXPECT_EQ(Stored("DURA"), "\r\nche fatica");
  EXPECT_EQ(Stored("minuta"), "Città");
  EXPECT_EQ(ApriEnciclopedia()->Chiavi().size(), 4u);
  EXPECT_EQ(window.importCaption, "2 minuta");
}

TEST_F(BulkTest, ImportTakesStrangeFilesAsTheyAre) {
  MakeStore("");
  Recupera_Definizioni();
  WriteFile("definizIONI.txt", "");
  Recupera_Definizioni();
  WriteFile("definizIONI.txt",
            "\xEF\xBB\xBF"
            "CAFF\xC3\x88\nNero e caff\xC3\xA8\n");
  Recupera_Definizioni();
  WriteFile("definizIONI.txt", std::string("A\0B\nx\0y\nC\n", 10) + std::string(10'000'000, 'z'));
  Recupera_Definizioni();
  EXPECT_EQ(user.TakeTexts(),
            (Texts{"Il file definizIONI.txt non c'\xE8 nella cartella del programma: nessuna "
                   "definizione \xE8 stata importata.",
                   ImportReport(0, 0), ImportReport(1, 0), ImportReport(2, 0)}));
  EXPECT_EQ(Stored("CAFF\xC8"), "Nero e caffè");
  EXPECT_EQ(Stored("C").size(), 10'000'000u);
}

TEST_F(BulkTest, AnImportThatCannotChangeAWordEndsThere) {
  MakeStore("");
  BaseDati(InFolder("telarium1.mdb"))
      .Esegui(
          "DROP TABLE Parole; CREATE TABLE Parole (PAROLA TEXT,"
          " DEFINIZ_FACILE TEXT CHECK (length(DEFINIZ_FACILE) < 8), DEFINIZ_DIFFIC TEXT);"
          " INSERT INTO Parole VALUES ('RE', 'corto', NULL)");
  WriteFile("definizIONI.txt", "ALA\nx\nRE\nmolto lungo\nORA\ny\n");
  Recupera_Definizioni();
  EXPECT_EQ(user.TakeTexts(),
            Texts{"Enciclopedia telarium1.mdb: il file non ammette questi dati."});
  EXPECT_EQ(window.shown, std::vector{Modale::Form6});
  EXPECT_EQ(Stored("ALA") + Stored("RE") + Stored("ORA"), "xcorto?");
}

TEST_F(BulkTest, ImportCountsAWordThatCannotBeAddedAndTellsIt) {
  MakeStore("");
  {
    BaseDati other(InFolder("telarium1.mdb"));
    other.Esegui("BEGIN IMMEDIATE");
    WriteFile("definizIONI.txt", "A\nx\nB\ny\n");
    Recupera_Definizioni();
  }
  EXPECT_EQ(user.TakeTexts(), Texts{ImportReport(2, 0) +
                                    "2 parole non sono state aggiunte. Enciclopedia "
                                    "telarium1.mdb: il file \xE8 occupato da un altro programma."});
  EXPECT_EQ(Stored("A"), "?");
}

}  // namespace
}  // namespace telarium
