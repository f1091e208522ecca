#include "clues/encyclopedia.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <new>
#include <thread>

#include "clues/clue_family.h"
#include "clues/encyclopedia_writer.h"
#include "clues/sqlite_database.h"
#include "support/clue_store.h"
#include "support/ordinary_user.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

class EncyclopediaTest : public TelariumTest {
 protected:
  Percorso store = InFolder("telarium1.mdb");

  // Statements on the store past the program, as another one would run them.
  void Sql(const char* statements) const { BaseDati(store).Esegui(statements); }

  // Leaves the store as a program does that was killed: with a row that is in the log alone.
  void KillAWriter() const {
    const Percorso log = InFolder("telarium1.mdb-wal");
    {
      BaseDati writer(store);
      writer.Esegui("PRAGMA journal_mode = WAL");
      writer.Esegui("INSERT INTO Parole VALUES ('REGISTRO', 'x', NULL)");
      fs::copy_file(store, InFolder("file"));
      fs::copy_file(log, InFolder("log"));
    }
    fs::rename(InFolder("file"), store);
    fs::rename(InFolder("log"), log);
  }

  // What an operation on the open store fails with; empty when it does not.
  static std::string ErrorOf(const std::function<void(Enciclopedia&)>& operation = {}) {
    try {
      const EnciclopediaAperta open = ApriEnciclopedia();
      if (operation) operation(*open);
      return {};
    } catch (const ErroreEnciclopedia& error) {
      const std::string& text = error.Descrizione();
      return text.substr(text.find(": ") + 2);
    }
  }

  static std::string Keys() {
    std::string keys;
    for (const ChiaveRiga& key : ApriEnciclopedia()->Chiavi())
      keys += key.parola + ' ';
    return keys;
  }
};

TEST_F(EncyclopediaTest, FirstRowOfAWordIsFoundFromAnywhere) {
  MakeStore("B\tF\tseconda\nA\tF\tprima\nA\tD\tdura\n");
  Sql("INSERT INTO Parole VALUES ('A', 'doppia', NULL)");
  const EnciclopediaAperta open = ApriEnciclopedia();
  EXPECT_EQ(open->LeggiFacili(), "prima") << "the first row is current";
  EXPECT_TRUE(open->CercaParola("B"));
  EXPECT_EQ(open->LeggiDifficili(), std::nullopt);
  EXPECT_FALSE(open->CercaParola("C"));
  EXPECT_THROW(open->LeggiFacili(), ErroreEnciclopedia);
  EXPECT_TRUE(open->CercaParola("A"));
  EXPECT_EQ(open->LeggiFacili(), "prima");
  EXPECT_FALSE(open->CercaParola("a"));
  EXPECT_FALSE(open->CercaParola("A%") || open->CercaParola("\" OR 1=1 --"));
  EXPECT_EQ(Keys(), "A A B ");
}

TEST_F(EncyclopediaTest, ClueIsAppendedBehindALineBreakAlsoToANullFamily) {
  MakeStore("A\tD\tdura\nB\tF\tIl Prete\n");
  {
    const EnciclopediaAperta open = ApriEnciclopedia();
    ASSERT_TRUE(open->CercaParola("A"));
    EXPECT_FALSE(open->ContieneDefinizione("dura")) << "the hard family is not looked at";
    open->ScriviFacili("prima");
    open->ScriviFacili("seconda");
    ASSERT_TRUE(open->CercaParola("B"));
    EXPECT_TRUE(open->ContieneDefinizione("RE") && open->ContieneDefinizione("il prete"));
    open->AggiungiParola("C", "citt\xE0 '\"; \x80");
    EXPECT_TRUE(open->ContieneDefinizione("CITT\xC0"));
  }
  EXPECT_EQ(Stored("A"), "\r\nprima\r\nseconda");
  EXPECT_EQ(Stored("A", true), "dura");
  EXPECT_EQ(Stored("C"), "città '\"; €");
  EXPECT_EQ(Stored("C", true), "-");
}

TEST_F(EncyclopediaTest, CharactersOutsideTheCodePageShowAsQuestionMarksAndStay) {
  MakeStore("A\tF\tx\nB\tF\ty\n");
  Sql("UPDATE Parole SET DEFINIZ_FACILE = 'Ω' || char(13) || 'b', DEFINIZ_DIFFIC = 'Ж'");
  {
    const EnciclopediaAperta open = ApriEnciclopedia();
    EXPECT_EQ(open->LeggiFacili(), "?\rb");
    open->ScriviFacili("c");
    const NumeroRiga row = open->Chiavi().front().numero;
    open->ScriviRiga(row, {.parola = "ALTRA", .facili = {}, .difficili = {}});
    open->ScriviRiga(row, {.parola = {}, .facili = {}, .difficili = ""});
    open->ScriviRiga(row, {.parola = {}, .facili = "d\r\n?\rb\r\nc", .difficili = {}});
    EXPECT_EQ(open->LeggiRiga(row).parola, "ALTRA");
    EXPECT_EQ(open->LeggiRiga(row).difficili, std::nullopt) << "an emptied family is null";
  }
  Sql("CREATE TABLE Esito AS SELECT 1 FROM Parole WHERE PAROLA = 'ALTRA' AND"
      " DEFINIZ_FACILE = 'd' || char(13, 10) || 'Ω' || char(13) || 'b' || char(13, 10) || 'c'");
  Sql("INSERT INTO Parole SELECT 'TROVATA', NULL, NULL FROM Esito");
  EXPECT_EQ(Stored("TROVATA"), "-");
}

TEST_F(EncyclopediaTest, SearchIsExactWhateverTheFileSays) {
  MakeStore("A\tF\tx\n");
  Sql("DROP TABLE Parole; CREATE TABLE Parole (PAROLA TEXT COLLATE NOCASE, DEFINIZ_FACILE TEXT,"
      " DEFINIZ_DIFFIC TEXT); INSERT INTO Parole VALUES ('a', 'x', NULL), ('B', 'y', NULL)");
  EXPECT_FALSE(ApriEnciclopedia()->CercaParola("A"));
  EXPECT_EQ(Keys(), "B a ");
}

TEST_F(EncyclopediaTest, RowsComeAndGoByTheirNumbers) {
  MakeStore("A\tF\tx\n");
  const EnciclopediaAperta open = ApriEnciclopedia();
  const NumeroRiga row = open->InserisciRiga({});
  EXPECT_EQ(open->LeggiRiga(row).parola, "");
  open->EliminaRiga({row, ""});
  EXPECT_THROW(open->LeggiRiga(row), ErroreEnciclopedia);
  EXPECT_THROW(open->ScriviRiga(row, {.parola = "B", .facili = {}, .difficili = {}}),
               ErroreEnciclopedia);
}

TEST_F(EncyclopediaTest, FilesThatAreNoStoreAreToldAndNeverWritten) {
  MakeStore("A\tF\tx\nB\tD\ty\n");
  const std::string good = ReadFile(store);
  std::string lying = good;
  lying[100 + 3] = '\x7F';  // the number of cells on the first page
  struct Case {
    const char* name;
    std::string bytes;
    std::string error;
  };
  const Case cases[] = {
      {"another format", std::string(5000, 'x'), "il file non \xE8 un'enciclopedia."},
      {"empty", "", "(no such table: Parole)."},
      {"cut off", good.substr(0, 5000), "il file \xE8 danneggiato."},
      {"damaged", lying, "il file \xE8 danneggiato."},
  };
  for (const auto& [name, bytes, error] : cases) {
    SCOPED_TRACE(name);
    WriteFile("telarium1.mdb", bytes);
    const std::string told = ErrorOf([](Enciclopedia& open) {
      open.CercaParola("B");
      open.AggiungiParola("C", "z");
    });
    EXPECT_TRUE(told.ends_with(error)) << told;
    EXPECT_EQ(FirstDifference(ReadFile(store), bytes), "");
    MakeStore("D\tF\tw\n");
    EXPECT_EQ(Keys(), "D ") << "made anew";
  }
  fs::remove(store);
  EXPECT_EQ(ErrorOf(), "il file manca o non si pu\xF2 aprire.");
  EXPECT_FALSE(fs::exists(store));
  WriteFile("telarium1.mdb", good);
  Sql("ALTER TABLE Parole DROP COLUMN DEFINIZ_DIFFIC");
  EXPECT_TRUE(ErrorOf().ends_with("(no such column: DEFINIZ_DIFFIC)."));
}

TEST_F(EncyclopediaTest, StoreHeldByAnotherProgramIsToldAfterAWhile) {
  MakeStore("A\tF\tx\n");
  {
    BaseDati other(store);
    other.Esegui("BEGIN EXCLUSIVE");
    EXPECT_EQ(ErrorOf(), "il file \xE8 occupato da un altro programma.");
  }
  // A write waits for one that is soon done.
  auto other = std::make_unique<BaseDati>(store);
  other->Esegui("BEGIN IMMEDIATE");
  const auto begun = std::chrono::steady_clock::now();
  std::thread release([&other] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    other.reset();
  });
  EXPECT_EQ(ErrorOf([](Enciclopedia& open) { open.AggiungiParola("B", "y"); }), "");
  EXPECT_GE(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(100));
  release.join();
  EXPECT_EQ(ErrorOf(), "");
}

TEST_F(EncyclopediaTest, AWordWithAnApostropheIsRefusedAndTheNextSearchGoesOn) {
  MakeStore("A\tF\tx\n");
  const EnciclopediaAperta open = ApriEnciclopedia();
  try {
    open->CercaParola("L'ORO");
    ADD_FAILURE() << "it was searched";
  } catch (const ErroreEnciclopedia& error) {
    EXPECT_TRUE(error.Descrizione().ends_with(
        "la parola \"L'ORO\" contiene un apostrofo e non si pu\xF2 cercare."));
  }
  EXPECT_TRUE(open->CercaParola("A"));
}

TEST_F(EncyclopediaTest, AProtectedStoreIsReadAndWrittenNothing) {
  MakeStore("A\tF\tx\n");
  fs::permissions(InFolder(""), fs::perms(0777));
  fs::permissions(store, fs::perms(0444));
  EXPECT_TRUE(AsOrdinaryUser([] { return ErrorOf() == "" && Stored("A") == "x"; }));
  EXPECT_TRUE(AsOrdinaryUser(
      [] { return ErrorOf([](Enciclopedia& open) { open.AggiungiParola("B", "y"); }) != ""; }));
  EXPECT_EQ(Stored("A") + Stored("B"), "x?");
}

TEST_F(EncyclopediaTest, TheFileIsWholeAndAloneAfterEachConnection) {
  MakeStore("A\tF\tx\n");
  {
    const EnciclopediaAperta browser = ApriEnciclopedia();
    ApriEnciclopedia()->AggiungiParola("B", "y");
    const EnciclopediaAperta writer = ApriEnciclopedia();
    writer->AggiungiParola("C", "z");
    EXPECT_TRUE(browser->CercaParola("B")) << "a browser sees what another connection stores";
    EXPECT_NE(ScriviEnciclopedia({}).errore, "") << "not while another one writes";
  }
  const std::string bytes = ReadFile(store);
  EXPECT_EQ(bytes.substr(18, 2), "\1\1") << "no log is told in the file";
  fs::copy_file(store, InFolder("copia"));
  fs::rename(InFolder("copia"), store);
  EXPECT_EQ(Stored("B"), "y");
  EXPECT_EQ(ElencaFile(InFolder(""), "telarium1*").size(), 1u);
}

TEST_F(EncyclopediaTest, WriterReplacesTheOldStoreWhenTheNewOneIsComplete) {
  MakeStore("VECCHIA\tF\tx\n");
  KillAWriter();
  std::vector<VoceDiLista> entries;
  const EsitoLista list = AggiungiVoci(
      "\xEF\xBB\xBFzia\tF\tSorella di mamma\r\nZIA\tD\t \xE2\x82\xAC \n\nZIA\tF\tSorella di mamma\n"
      "UN ALTRO\tF\tx\nZIA\tX\tx\nZIA\tF\t\nZIA\nZIA\tF\ta\tb\nZIA\tF\t\xCE\xA9\nZIA\tF\t\xFF\n"
      "ZIA\tF\tCognata di papà\n",
      entries);
  EXPECT_EQ(list.tralasciate, 7);
  EXPECT_EQ(list.primaTralasciata, 5);
  const EsitoEnciclopedia made = ScriviEnciclopedia(entries);
  EXPECT_EQ(made.errore, "");
  EXPECT_EQ(made.parole, 1);
  EXPECT_EQ(made.definizioni, 3);
  EXPECT_EQ(Stored("ZIA"), "Sorella di mamma\r\nCognata di papà") << "the doubled one once";
  EXPECT_EQ(Stored("ZIA", true), "€");
  EXPECT_EQ(Stored("VECCHIA"), "?");

  CartellaProgramma = InFolder("manca");
  EXPECT_NE(ScriviEnciclopedia(entries).errore, "");
}

TEST_F(EncyclopediaTest, ALogOfAnotherStoreIsNeverPlayedBackOverANewOne) {
  MakeStore("VECCHIA\tF\tx\n");
  KillAWriter();
  EXPECT_EQ(Stored("REGISTRO"), "x") << "with its own file it is kept";
  for (const bool gone : {true, false}) {
    KillAWriter();
    if (gone) fs::remove(store);
    MakeStore("NUOVA\tF\ty\n");
    EXPECT_EQ(Keys(), "NUOVA ") << gone;
    EXPECT_EQ(ElencaFile(InFolder(""), "telarium1*").size(), 1u) << gone;
  }
}

TEST(ClueFamily, SplitsAtLineBreaksAlone) {
  using Parts = std::vector<std::string_view>;
  EXPECT_EQ(PartiDellaFamiglia(""), Parts{""});
  EXPECT_EQ(PartiDellaFamiglia("\r\na\r\n \r\nb\nc\rd\r\n"), (Parts{"", "a", " ", "b\nc\rd", ""}));
  EXPECT_EQ(DefinizioniDellaFamiglia("\r\n a \r\n \r\nb\r\n"), (Parts{" a ", "b"}));
}

TEST(ClueFamily, SpezzatestoKeepsAThousand) {
  std::string text;
  for (int n = 1; n <= 1200; ++n)
    text += std::to_string(n) + "\r\n";
  spezzatesto(text);
  EXPECT_EQ(text, "1000");
  EXPECT_EQ(ElencoDefinizioni(1000), "1000");
  text = " \r\n";
  spezzatesto(text);
  EXPECT_EQ(text, "0");
  EXPECT_EQ(ElencoDefinizioni(1) + ElencoDefinizioni(1000), "");
}

TEST(Statement, LetsGoOfItsRowWhateverEndsItsUse) {
  BaseDati base;
  base.Esegui("CREATE TABLE T (N); INSERT INTO T VALUES (1), (2), (3)");
  Istruzione from(base, "SELECT N FROM T WHERE N >= ?1 ORDER BY N");
  try {
    const PrimaRiga row(from.Lega(1, 1));
    throw std::bad_alloc();
  } catch (const std::bad_alloc&) {
  }
  base.Esegui("DROP TABLE T; CREATE TABLE T (N); INSERT INTO T VALUES (4)");
  const PrimaRiga row(from.Lega(1, 2));
  ASSERT_TRUE(row);
  EXPECT_EQ(row->Intero(0), 4);
}

TEST(ClueList, AnswerIsFoundAsAWordOfItsOwn) {
  struct Case {
    const char* clue;
    const char* word;
    bool found;
  };
  for (const auto& [clue, word, found] :
       {Case{"Il per\xF9 degli Inca", "PERU", true}, Case{"Il Per\xF9", "PER\xD9", true},
        Case{"l'ORO", "ORO", true}, Case{"Il re", "RE", true},
        Case{"2\xD7"
             "RE",
             "RE", true},
        Case{"Un supercalifragili\xE8", "SUPERCALIFRAGILIE", true},
        Case{"Tesoro d'oriente", "ORO", false}, Case{"", "ORO", false}})
    EXPECT_EQ(ContieneRisposta(clue, word), found) << clue;
}

}  // namespace
}  // namespace telarium
