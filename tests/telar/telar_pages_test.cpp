#include "telar/telar_fixture.h"

namespace telarium {
namespace {

constexpr const char* OutputError =
    "Si è verificato un errore di scrittura/accesso al file o drive!, controlla che eventualmente "
    "i files non siano impostati a sola lettura. ";

using TelarPages = Telar;

TEST_F(TelarPages, LieInTheProgramFolderUnlessAnotherPlaceIsNamed) {
  for (const char* line : {"html sample", "form sample", "testo sample", "html sample --uscita p",
                           "form --uscita=q sample", "testo sample --cartella-uscita folder"}) {
    EXPECT_EQ(Out(line), "") << line;
  }
  EXPECT_EQ(Names("program"),
            (Words{"NONOME.TXT", "NONOME.html", "telarium_form.html", "telarium_html.html"}));
  EXPECT_EQ(Names("work"), (Words{"old", "p", "q", "sample", "square", "folder"}));
  EXPECT_EQ(Read("p"), Read("../program/telarium_html.html"));
  EXPECT_EQ(Read("q"), Read("../program/telarium_form.html"));
  EXPECT_EQ(Read("folder/NONOME.html"), Read("../program/NONOME.html"));
  EXPECT_EQ(Read("folder/NONOME.TXT"), Read("../program/NONOME.TXT"));
  EXPECT_EQ(Read("folder/NONOME.TXT"),
            "ORIZZONTALI:\r\n1 Caff\xE8\tnero  4 ____________  6 ____________  \r\n"
            "VERTICALI:\r\n1   cinque \x80   2 poi  3 ____________  5 ____________  ");
  EXPECT_TRUE(Read("p").starts_with("<html><head><title>Telarium - sample </title></head>\r\n"));
  EXPECT_NE(Read("../program/NONOME.html").find("   -   sample<br>\r\nAutore<br>\r\n"),
            std::string::npos);
}

TEST_F(TelarPages, LeaveTheSolutionsOutInTwoWays) {
  const char *letter = "<font size=\"3\">C</td>", *mark = "<font size=\"3\">##</td>";
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"html", letter, true},
      {"html --modo 2", letter, true},
      {"html --senza-soluzioni", letter, false},
      {"html --senza-soluzioni --modo 1", mark, true},
      {"html --senza-soluzioni --modo=2", mark, false},
      {"form --senza-soluzioni", mark, true}};
  for (const auto& [line, text, shows] : cases) {
    Out(Unisci(line, " sample --uscita p"));
    EXPECT_EQ(Read("p").find(text) != std::string::npos, shows) << line;
  }
}

TEST_F(TelarPages, ShowTheConfiguredSite) {
  WriteFile("program/indirizzi.txt", "SitoProdotto=cruciverba.example\r\n");
  Out("html sample --uscita p");
  EXPECT_NE(Read("p").find(R"(<a href="http://cruciverba.example">cruciverba.example</a>)"),
            std::string::npos);
}

TEST_F(TelarPages, AFailureAndWrongArgumentsAreToldAndLeaveWhatWasThere) {
  const char *onAFolder = "il nome è quello di una cartella",
             *missing = "il file o la cartella non esiste";
  const std::tuple<const char*, const char*, const char*> failures[] = {
      {"html sample --uscita folder", "folder", onAFolder},
      {"html sample --uscita none/p", "none/p", missing},
      {"html sample --uscita=", "", missing},
      {"form sample --uscita folder", "folder", onAFolder},
      {"form sample --uscita none/p", "none/p", missing},
      {"testo sample --cartella-uscita none", "none/NONOME.TXT", missing},
      {"testo sample --cartella-uscita old", "old/NONOME.TXT", "il percorso non è una cartella"}};
  for (const auto& [line, file, cause] : failures)
    EXPECT_EQ(Told(line, 1), Unisci(OutputError, file, ": ", cause, ".\n")) << line;
  for (const char* command : {"html", "form"}) {
    EXPECT_EQ(Told(Unisci(command, " missing --uscita old"), 1),
              Unisci("Errore: Cruciverba  missing  Non trovato! Esecuzione terminata.\n"));
    EXPECT_EQ(Told(Unisci(command, " old --uscita old"), 1),
              "Errore di lettura del file! old: il contenuto non è quello di un cruciverba, o è "
              "incompleto.\n");
    EXPECT_EQ(Told(Unisci(command, " sample --uscita ./sample"), 1),
              "L'uscita è il cruciverba stesso: nessun file scritto.\n");
  }
  fs::create_directory(InFolder("work/folder/NONOME.html"));
  Write("folder/NONOME.TXT", "old");
  EXPECT_EQ(Told("testo sample --cartella-uscita folder", 1),
            Unisci(OutputError, "folder/NONOME.html: ", onAFolder, ".\n"));
  EXPECT_EQ(Read("folder/NONOME.TXT"), "old");
  for (const char* line :
       {"html", "html sample square", "html sample --modo 3", "html sample --modo",
        "form sample --modo 1", "testo sample --uscita p", "form"}) {
    const TelarResult result = Run(line);
    EXPECT_EQ(result.status, 2) << line;
    EXPECT_NE(result.err.find("Uso: telar "), std::string::npos) << line;
  }
  EXPECT_EQ(Names("program"), Words());
}

}  // namespace
}  // namespace telarium
