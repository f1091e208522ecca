#include "crossworddialogs/crossword_archive.h"

#include <filesystem>
#include <unistd.h>

#include "crossworddialogs/new_crossword.h"
#include "model/crossword_file.h"
#include "platform/codepage.h"
#include "support/ordinary_user.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class Archive : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    Draw({"CASA"});
    MarkModified();
  }

  bool Save(const Percorso& name, const std::string& author = "Ada") const {
    return SalvaNellArchivio(InFolder(""), name, author);
  }

  void ExpectNotSaved(const std::string& told) {
    EXPECT_EQ(user.TakeTexts(), Texts{told});
    EXPECT_EQ(NomeCruciverba, "prova.tlrm");
    EXPECT_EQ(SchemaModificato, Vero);
    EXPECT_EQ(Schema(1), "Autore     : Prova");
  }
};

TEST_F(Archive, ANameBecomesAFullOneWithAnEnding) {
  fs::create_directory(InFolder("con.punto"));
  const std::pair<Percorso, Percorso> names[] = {
      {"uno", "uno.tlrm"},
      {"due.txt", "due.txt"},
      {"con.punto/tre", "con.punto/tre.tlrm"},
      {"con.punto\\tre", "con.punto\\tre.tlrm"},
      {"1:cinque", "1:cinque.tlrm"},
      {InFolder("con.punto/quattro"), "con.punto/quattro.tlrm"},
      {"Perché no à è ì ò ù", "Perché no à è ì ò ù.tlrm"},
      {"漢字", "漢字.tlrm"},
  };
  for (const auto& [name, file] : names) {
    SetName(NomeMaiSalvato);
    MarkModified();
    ASSERT_TRUE(Save(name, "Ada"));
    EXPECT_EQ(NomeCruciverba, InFolder(file));
    EXPECT_EQ(SchemaModificato, Falso);
    const std::string bytes = ReadFile(InFolder(file));
    EXPECT_TRUE(bytes.starts_with("Autore     : Ada\r\nData"));
    EXPECT_EQ(ReadFile(PercorsoIstantanea()), bytes);
  }
  EXPECT_EQ(AutoreDelCruciverba(), "Ada");
  SetHeader(1, "x");
  EXPECT_EQ(AutoreDelCruciverba(), "");
  ASSERT_TRUE(Save("corto"));
  EXPECT_EQ(Schema(1), "x            Ada");
}

TEST_F(Archive, AFileIsWrittenOverOnlyWhenTheUserSaysSo) {
  const Percorso old = WriteFile("già.tlrm", "old");
  user.Answer(Risposta::Annulla);
  EXPECT_TRUE(Save("già")) << "the window closes";
  EXPECT_TRUE(fs::exists(PercorsoIstantanea()));
  const Messaggio asked = user.TakeMessages().front();
  EXPECT_EQ(asked.titolo, "Salvataggio file");
  EXPECT_EQ(asked.testo,
            Unisci("Il file ", Maiuscole(TestoPercorso(old)), " esiste già; vuoi riscriverlo?"_cp));
  EXPECT_EQ(ReadFile(old), "old");
  EXPECT_EQ(NomeCruciverba, "prova.tlrm");
  EXPECT_EQ(SchemaModificato, Vero);
  user.Answer(Risposta::Ok);
  EXPECT_TRUE(Save("già"));
  EXPECT_NE(ReadFile(old), "old");
  user.TakeTexts();
}

TEST_F(Archive, ABadNameOrAFaultOfTheDiskCostsNothing) {
  fs::create_directory(InFolder("cartella.tlrm"));
  fs::create_directory(InFolder("con.punto"));
  const std::string longName(300, 'n');
  const std::tuple<Percorso, Percorso, std::string_view> bad[] = {
      {"", InFolder(".tlrm"), "manca il nome del file"},
      {"cartella.tlrm", InFolder("cartella.tlrm"), "il nome è quello di una cartella"_cp},
      {"manca/uno", InFolder("manca/uno.tlrm"), "il file o la cartella non esiste"},
      {"C:\\uno", InFolder("C:\\uno.tlrm"), "nessun disco ha una lettera"},
      {"c:", InFolder("c:.tlrm"), "nessun disco ha una lettera"},
      {"con.punto/", InFolder("con.punto/.tlrm"), "manca il nome del file"},
      {longName, InFolder(longName + ".tlrm"), "il nome è troppo lungo"_cp},
      {"/dev/null/uno", "/dev/null/uno.tlrm", "il percorso non è una cartella"_cp},
  };
  for (const auto& [name, full, cause] : bad) {
    EXPECT_FALSE(Save(name)) << name;
    ExpectNotSaved(WithCause("Errore di nome file o accesso al disco!", full, cause));
  }
  // A cell that no file can hold stands for a disk that takes nothing more.
  const Percorso old = WriteFile("vecchio.tlrm", "old");
  SetCell(1, 1, '\xFF');
  user.Answer(Risposta::Ok);
  EXPECT_FALSE(Save("vecchio"));
  EXPECT_EQ(user.TakeTexts().back(),
            WithCause("Errore di scrittura del file!", old, CruciverbaNonScrivibile));
  EXPECT_EQ(ReadFile(old), "old");
  EXPECT_EQ(NomeCruciverba, "prova.tlrm");
  EXPECT_EQ(Schema(1), "Autore     : Prova");
}

TEST_F(Archive, WithoutAGridNoFileIsWrittenOver) {
  const Percorso old = WriteFile("vecchio.tlrm", "old");
  NoGrid();
  EXPECT_FALSE(Save("vecchio"));
  ExpectNotSaved("Il cruciverba non ha uno schema: non \xE8 possibile salvarlo.");
  EXPECT_EQ(ReadFile(old), "old");
}

TEST_F(Archive, TheFolderIsMadeWhereItCanBe) {
  EXPECT_EQ(CartellaArchivio(), InFolder("Archivio cruciverba"));
  EXPECT_TRUE(fs::is_directory(InFolder("Archivio cruciverba")));
  fs::rename(InFolder("Archivio cruciverba"), InFolder("ARCHIVIO Cruciverba"));
  EXPECT_EQ(CartellaArchivio(), InFolder("ARCHIVIO Cruciverba"));
  EXPECT_FALSE(fs::exists(InFolder("Archivio cruciverba"))) << "no second one";
  fs::remove(InFolder("ARCHIVIO Cruciverba"));
  WriteFile("Archivio cruciverba", "a file");
  EXPECT_EQ(CartellaArchivio(), CartellaProgramma);
  fs::remove(InFolder("Archivio cruciverba"));
  fs::permissions(CartellaProgramma, fs::perms(0755));
  EXPECT_TRUE(AsOrdinaryUser([this] {
    if (::access(CartellaProgramma.c_str(), W_OK) == 0) return true;  // the folder's own user
    return CartellaArchivio() == CartellaProgramma && !fs::exists(InFolder("Archivio cruciverba"));
  }));
}

TEST_F(Archive, TheAuthorGoesFromTheCrosswordToTheFileAndBack) {
  ASSERT_EQ(NuovoVuoto(4, 3), EsitoNuovo::Fatto);
  EXPECT_EQ(AutoreDelCruciverba(), "Zanotti Graziella");
  ASSERT_TRUE(Save("uno", "Ada"));
  EXPECT_EQ(AutoreDelCruciverba(), "Ada");
  ASSERT_EQ(NuovoVuoto(4, 3), EsitoNuovo::Fatto);
  EXPECT_EQ(AutoreDelCruciverba(), "Zanotti Graziella");
  ASSERT_EQ(ApriCruciverba(InFolder("uno.tlrm")), Apertura::Intera);
  EXPECT_EQ(AutoreDelCruciverba(), "Ada");
}

TEST_F(Archive, GivingUpWithoutACrosswordShowsNoGrid) {
  EXPECT_EQ(NomeProposto(), "prova.tlrm");
  RinunciaAdAprire();
  EXPECT_EQ(ModoGriglia, 0);
  SetName("");
  EXPECT_EQ(NomeProposto(), "Telar000.tlrm");
  RinunciaAdAprire();
  EXPECT_EQ(ModoGriglia, -1);
}

}  // namespace
}  // namespace telarium
