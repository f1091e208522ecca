#include "clues/encyclopedia.h"
#include "support/faults.h"
#include "telar/telar_fixture.h"

namespace telarium {
namespace {

class TelarClues : public Telar {
 protected:
  void SetUp() override {
    Telar::SetUp();
    CartellaProgramma = InFolder("program");
  }

  void MakeStore(std::string_view list) {
    Write("list", list);
    EXPECT_NE(Out("enc-crea --vuoto list"), "");
  }
};

constexpr const char* Fetched =
    "L'operazione di recupero delle definizioni è terminata con successo. Dall'enciclopedia sono "
    "state trovate e compilate N. 1 definizioni orizzontali e N. 1 definizioni verticali. Cliccare "
    "sul bottone 'Vista tabellare' della barra principale per vedere le parole inserite.\n";

TEST_F(TelarClues, EncyclopediaIsMadeAndShown) {
  Write("a", "ZIA\tF\tSorella di papà\nzia\tD\tHa nipoti\nstorta\n");
  Write("b", "ZIA\tF\tParente\tstretta\nZIA\tF\tParente\nORO\tD\t\"Au\"\n");
  const TelarResult made = Run("enc-crea a b");
  EXPECT_EQ(made.out, "2\t4\n");
  EXPECT_EQ(made.err,
            "a: righe tralasciate 1, la prima è la 3.\n"
            "b: righe tralasciate 1, la prima è la 1.\n");
  EXPECT_EQ(Out("definizioni zia"), "F\tSorella di papà\nF\tParente\nD\tHa nipoti\n");
  EXPECT_EQ(Out("definizioni ORO"), "D\t\"Au\"\n");
  EXPECT_EQ(Told("definizioni argento", 1), "");
  EXPECT_EQ(Told("enc-crea manca a", 1), "La lista di definizioni non è stata trovata: manca\n");
  Write("other", "no list\nat all\n");
  EXPECT_EQ(Told("enc-crea other", 1),
            "other: righe tralasciate 2, la prima è la 1.\n"
            "Nessuna definizione nelle liste: l'enciclopedia resta com'era.\n");
  Write("nothing", "");
  EXPECT_EQ(Told("enc-crea nothing", 1),
            "Nessuna definizione nelle liste: l'enciclopedia resta com'era.\n");
  EXPECT_EQ(Out("definizioni ORO"), "D\t\"Au\"\n") << "the old one stays";
  EXPECT_EQ(Out("enc-crea nothing --vuoto"), "0\t0\n");
  EXPECT_EQ(Told("definizioni ORO", 1), "");
  EXPECT_EQ(Names("program"), Words{"telarium1.mdb"});
}

TEST_F(TelarClues, CluesGoFromTheEncyclopediaAndIntoIt) {
  MakeStore("ORA\tF\tfacile\nORA\tD\tdifficile\nOCA\tF\tf\n");
  Write("new", "");
  EXPECT_EQ(Out("nuovo grid --dimensioni 3x3"), "");
  Write("grid", Unisci(Head, "03x03\r\ni.l.[.\r\n].D*D*\r\n[.D*D*\r\n"));
  EXPECT_EQ(Out("preleva grid result --modo=3"), Fetched);
  EXPECT_EQ(Out("parole result"), "1\tO\t1\t1\t3\tORA\tdifficile\n1\tV\t1\t1\t3\tOCA\t\n");
  EXPECT_EQ(Out("preleva grid result --modo 2"), Fetched);
  Write("grid", Unisci(Head, "03x03\r\ni.l.[.\r\n].D*D*\r\n[.D*D*\r\n  1  11-nuova\r\n"));
  const std::string saved =
      "Tutte le definizioni presenti in questo sdhema sono state salvate sull'enciclopedia con "
      "successo. Sono state aggiunte 0 parole all'enciclopedia. Sono state aggiornate ";
  const std::string end = " definizioni all'enciclopedia aggiungendo nuovi termini.\n";
  EXPECT_EQ(Out("salva-definizioni grid"), saved + "1" + end);
  EXPECT_EQ(Out("salva-definizioni grid"), saved + "0" + end);
  EXPECT_EQ(Out("definizioni ora"), "F\tfacile\nF\tnuova\nD\tdifficile\n");
  EXPECT_EQ(Run("preleva grid old --modo 4").status, 2);
  fs::remove(InFolder("program/telarium1.mdb"));
  for (const char* line :
       {"preleva grid old", "salva-definizioni grid", "importa-definizioni", "definizioni ora"}) {
    EXPECT_EQ(Told(line, 1), "Enciclopedia telarium1.mdb: il file manca o non si può aprire.\n");
  }
}

TEST_F(TelarClues, TheStoreOfTheUsersOwnFolderIsUsedAsItIs) {
  MakeStore("ORA\tF\tmia\n");
  fs::create_directory(InFolder("home/telarium"));
  fs::rename(InFolder("program/telarium1.mdb"), InFolder("home/telarium/telarium1.mdb"));
  call.environment.back() = "XDG_DATA_HOME=" + InFolder("home").string();
  EXPECT_EQ(Out("definizioni ora"), "F\tmia\n");
}

TEST_F(TelarClues, ImportOnAFullDiskReportsNoSuccess) {
  MakeStore("ORA\tF\tfacile\n");
  WriteFile("program/definizIONI.txt", "UNO\r\nprimo\r\nDUE\r\nsecondo\r\n");
  const Words usual = call.environment;
  // From the third call on, which is the first one that wants room.
  for (const std::string& one :
       Environment({.at = 3, .what = "ENOSPC", .onward = true, .under = InFolder("program")}))
    call.environment.push_back(one);
  EXPECT_EQ(Told("importa-definizioni", 1),
            "2 parole non sono state aggiunte. Enciclopedia telarium1.mdb: il disco è pieno.\n");
  call.environment = usual;
  EXPECT_EQ(Told("definizioni UNO", 1), "");
  EXPECT_EQ(Out("definizioni ORA"), "F\tfacile\n");
  EXPECT_NE(Out("importa-definizioni"), "");
  EXPECT_EQ(Out("definizioni DUE"), "F\tsecondo\n");
}

TEST_F(TelarClues, ImportThatIsKilledLeavesAStoreWithWhatItHadAdded) {
  MakeStore("");
  EXPECT_EQ(Told("importa-definizioni", 1),
            "Il file definizIONI.txt non c'è nella cartella del programma: nessuna definizione è "
            "stata importata.\n");
  std::string pairs;
  for (int n = 0; n < 300'000; ++n)
    pairs += Unisci("P", n, "\r\nDefinizione numero ", n, "\r\n");
  WriteFile("program/definizIONI.txt", pairs);
  call.arguments = {"importa-definizioni"};
  const Percorso store = InFolder("program/telarium1.mdb");
  {
    TelarProcess running(call);
    running.WaitUntil([&] {
      std::error_code none;
      return fs::file_size(store, none) > 200'000;
    });
    running.Kill();
    EXPECT_EQ(running.WaitForEnd().status, -9);
  }
  const auto rows = [] { return ApriEnciclopedia()->Chiavi(); };
  const std::size_t kept = rows().size();
  ASSERT_GT(kept, 1000u);
  EXPECT_EQ(Out(Unisci("definizioni P", kept - 1)),
            Unisci("F\tDefinizione numero ", kept - 1, '\n'))
      << "all that came before the last one";
  WriteFile("program/definizIONI.txt", "P0\r\naltra\r\n");
  EXPECT_NE(Out("importa-definizioni"), "");
  EXPECT_EQ(rows().size(), kept);
}  // namespace

}  // namespace
}  // namespace telarium
