#include "platform/installed_data.h"

#include "platform/program_folder.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

// An installed folder whose package changes, and a user's folder beside it. Neighbouring versions
// differ in size: the time of a change may be the same within a tick of the system's clock.
class InstalledData : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    std::filesystem::create_directories(InFolder("dati/Archivio"));
    std::filesystem::create_directories(InFolder("dati/clues"));
    std::filesystem::create_directories(InFolder("dati/lexicon"));
    std::filesystem::create_directories(InFolder("mia"));
    Install("prima");
  }

  static std::vector<Percorso> Names() {
    return {"A.dat", "TIPS.txt", "telarium.INI", "indirizzi.txt", "Archivio/uno.tlrm"};
  }

  void Install(const std::string& version) const {
    for (const char* name : {"dati/clues/lista.tsv", "dati/lexicon/italiano.lexicon"})
      WriteFile(name, version);
    for (const Percorso& name : Names())
      WriteFile("dati" / name, version + " " + name.string());
  }

  // A start of the program: what is missing first. Gives what could not be replaced.
  std::vector<CopiaFallita> Start(FileModificati changed = FileModificati::Chiedi) const {
    EXPECT_TRUE(RiempiCartella(InFolder("dati"), InFolder("mia")).empty());
    return AggiornaCartella(InFolder("dati"), InFolder("mia"), changed);
  }

  std::string Own(const Percorso& name) const { return ReadFile(InFolder("mia" / name)); }

  // The own files that are those of a version.
  std::vector<Percorso> OwnOf(const std::string& version) const {
    std::vector<Percorso> names = Names();
    std::erase_if(names,
                  [&](const Percorso& name) { return Own(name) != version + " " + name.string(); });
    return names;
  }

  std::vector<Messaggio> Questions() { return user.TakeMessages(); }
};

TEST_F(InstalledData, UnchangedFilesFollowEachPackageAndWhatTheUserOwnsDoesNot) {
  for (const char* version : {"prima", "seconda", "prima", "ultima"}) {
    Install(version);
    EXPECT_TRUE(Start(FileModificati::Lascia).empty());
    EXPECT_EQ(OwnOf(version), Names()) << version;
  }
  for (const char* name : {"telarium.INI", "indirizzi.txt", "Archivio/uno.tlrm"})
    WriteFile(Percorso("mia") / name, "mio");
  WriteFile("dati/telarium1.mdb", "di un albero di compilazione");
  WriteFile("mia/telarium1.mdb", "mio");
  std::filesystem::remove(InFolder("mia/TIPS.txt"));
  Install("nuova edizione");
  EXPECT_TRUE(Start().empty());
  EXPECT_EQ(OwnOf("nuova edizione"), (std::vector<Percorso>{"A.dat", "TIPS.txt"}));
  EXPECT_EQ(Own("Archivio/uno.tlrm"), "mio");
  EXPECT_EQ(Own("telarium1.mdb"), "mio");
  for (const char* name : {"mia/clues", "mia/lexicon"})
    EXPECT_FALSE(std::filesystem::exists(InFolder(name))) << name;
  EXPECT_EQ(Own(NomeRegistroInstallati).find("lexicon"), std::string::npos);
}

TEST_F(InstalledData, AboutChangedOnesOneQuestionIsAskedOnceForEachVersion) {
  Start();
  WriteFile("mia/A.dat", "mio A");
  WriteFile("mia/TIPS.txt", "miei TIPS");
  Start();  // what is installed is as it was
  Install("seconda");
  Start(FileModificati::Lascia);
  EXPECT_EQ(OwnOf("seconda").size(), 3u) << "a start without questions leaves them";

  user.Answer(Risposta::Annulla);
  Start();
  const auto asked = Questions();
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].pulsanti, Pulsanti::OkAnnulla);
  EXPECT_NE(asked[0].testo.find("\n\nA.dat, TIPS.txt\n\n"), std::string::npos) << asked[0].testo;
  Start();
  Install("prima");
  Start();
  Install("seconda");
  Start();
  EXPECT_TRUE(Questions().empty());
  EXPECT_EQ(Own("A.dat"), "mio A");

  for (const char* version : {"terza", "quarta"}) {
    WriteFile("mia/A.dat", std::string("per la ") + version);
    Install(version);
    user.Answer(Risposta::Ok);
    EXPECT_TRUE(Start().empty());
    EXPECT_EQ(OwnOf(version), Names());
  }
  EXPECT_EQ(Questions().size(), 2u);
  const Percorso aside = Percorso("mia") / CartellaSostituiti;
  EXPECT_EQ(ReadFile(InFolder(aside / "A.dat")), "per la terza");
  EXPECT_EQ(ReadFile(InFolder(aside / "A 2.dat")), "per la quarta");
  EXPECT_EQ(ReadFile(InFolder(aside / "TIPS.txt")), "miei TIPS");
}

TEST_F(InstalledData, WithoutARecordAFileOfTheInstalledVersionIsUnchanged) {
  const Percorso record = InFolder(Percorso("mia") / NomeRegistroInstallati);
  Start();
  for (const char* damaged :
       {"", "\t\t", "12", "x\ty\tA.dat\n\n\t9\tTIPS.txt\n99999999999999999999"}) {
    WriteFile(record, damaged);
    Start();
    Install("seconda");
    Start();
    EXPECT_EQ(OwnOf("seconda"), Names()) << damaged;
    Install("prima");
    Start();
  }
}

TEST_F(InstalledData, ARecordThatCannotBeReadIsNotMadeAnew) {
  Start();
  Install("seconda");
  const Percorso record = InFolder(Percorso("mia") / NomeRegistroInstallati);
  const Percorso aside = InFolder("record");
  std::filesystem::rename(record, aside);
  std::filesystem::create_symlink(record, record);  // reading it fails
  EXPECT_TRUE(Start().empty());
  EXPECT_EQ(OwnOf("prima"), Names());
  std::filesystem::rename(aside, record);
  Start();
  EXPECT_EQ(OwnOf("seconda"), Names());
}

// The first package kept no record; these are the bytes of one of its files.
TEST_F(InstalledData, AFileOfTheFirstPackageIsKnownWithoutOne) {
  const std::string settings =
      "RettangoloParola=-1 \r\nTastoSin= 0 \r\nStampaSoluzioni= 0 \r\nPercentualeRiquadro= 95 \r\n"
      "SpessoreBordo= 2 \r\nAltezzaCaratteri= 52 \r\nAltezzaNumeri= 18 \r\nDistanzaDaSpigolo= 3 "
      "\r\n"
      "DistanzaDaCentro= 6 \r\n";
  WriteFile("mia/telarium.INI", settings);
  Start();
  EXPECT_EQ(OwnOf("prima"), Names());
}

TEST_F(InstalledData, WhatCannotBeReplacedIsGivenAndTriedAgain) {
  Start();
  std::filesystem::remove(InFolder("mia/A.dat"));
  WriteFile("mia/TIPS.txt", "miei TIPS");
  WriteFile(Percorso("mia") / CartellaSostituiti, "no folder");
  std::filesystem::create_directory(InFolder("mia/A.dat"));
  WriteFile("dati/TIPS.txt", "seconda TIPS.txt");
  for (int start = 0; start < 2; ++start) {
    user.Answer(Risposta::Ok);
    const auto failed = AggiornaCartella(InFolder("dati"), InFolder("mia"), FileModificati::Chiedi);
    ASSERT_EQ(failed.size(), 1u);
    EXPECT_EQ(failed[0].nome, "TIPS.txt");
    EXPECT_EQ(Own("TIPS.txt"), "miei TIPS") << "it could not be put aside";
  }
  EXPECT_EQ(Questions().size(), 2u);
}

}  // namespace
}  // namespace telarium
