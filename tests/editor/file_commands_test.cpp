#include "editor/file_commands.h"

#include "editor/cell_editing.h"
#include "editor/commands.h"
#include "editor/redraw.h"
#include "editor/resizing.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Windows = std::vector<Modale>;

class FileCommands : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    window.splash = true;
  }

  RecordingWindow window;
};

TEST_F(FileCommands, TheSplashMakesRoomForTheWindowAndComesBackWithoutACrossword) {
  for (const auto command : {NuovoCruciverba, ApriConFinestra}) {
    platform.window.calls.clear();
    window.tipShows = true;
    window.rectangle = Rettangolo{};
    window.whenShown = [this] {
      EXPECT_FALSE(window.splash || window.tipShows || window.rectangle);
      EXPECT_EQ(platform.window.calls, std::vector<std::string>{"Pulisci"});
      EXPECT_EQ(PuntatoreMouse, 11);
    };
    command();
    EXPECT_TRUE(window.splash);
    EXPECT_EQ(PuntatoreMouse, 0);
  }
  window.whenShown = [] { Draw({"CASA"}); };
  NuovoCruciverba();
  EXPECT_FALSE(window.splash);
  EXPECT_TRUE(window.title.starts_with("Telarium - 4x1")) << "redrawn";
}

TEST_F(FileCommands, AChangedCrosswordIsAskedForBeforeAnotherOne) {
  Draw({"CASA"});
  SetName(NomeMaiSalvato);
  MarkModified();
  user.Answer(Risposta::Ok);
  NuovoCruciverba();
  EXPECT_EQ(window.shown, (Windows{Modale::TelarSav, Modale::FormNew}));
  window.shown.clear();
  user.Answer(Risposta::Annulla);
  window.preview = true;
  ApriConFinestra();
  EXPECT_EQ(window.shown, Windows{Modale::Form2}) << "a Cancel does not stop the command";
  EXPECT_FALSE(window.preview);
  EXPECT_EQ(user.TakeTexts().front(),
            "Il file NUOVOCRUCIVERBA.TLRM \xE8 cambiato, si desidera salvare");
  user.Answer(Risposta::Annulla);
  GestisciModelli();
  EXPECT_EQ(window.shown, (Windows{Modale::Form2, Modale::FormModels}));
  user.TakeTexts();
}

TEST_F(FileCommands, ASaveWritesOverNothingElseUnasked) {
  Draw({"CASA"});
  const std::string page = TestoDelCruciverba().value();
  const Percorso file = WriteFile("uno.tlrm", page);
  const std::string header = page.substr(0, page.find("].["));
  const std::string foreign = header + "H.H.H.H.\r\n  1  12-senza fine";
  const std::string broken = header + "H.H.H.H.\r\n  0  01-fuori\r\n";
  const auto open = [&] { return ApriFileDiCruciverba(file); };
  const struct {
    std::function<void()> before;
    std::string_view told;  // behind the name of the file; empty: nothing is asked
  } cases[] = {
      {[&] { EXPECT_TRUE(open()); }, ""},
      {[&] { EXPECT_TRUE(open() && ApriTestoDiCruciverba(page)); }, "contiene un altro cruciverba"},
      {[&] { WriteFile("uno.tlrm", foreign); }, "\xE8 stato cambiato da un altro programma"},
      {[&] {
         WriteFile("uno.tlrm", broken);
         EXPECT_TRUE(open());
         user.TakeTexts();
       },
       "non \xE8 stato letto per intero, e il resto andrebbe perduto"},
      {[&] { std::filesystem::remove(file); }, ""},
  };
  for (const auto& [before, told] : cases) {
    before();
    const bool asked = !told.empty();
    if (asked) user.Answer(Risposta::Annulla);
    const std::string bytes = asked ? ReadFile(file) : "";
    window.shown.clear();
    SalvaCruciverba();
    EXPECT_EQ(window.shown, asked ? Windows{Modale::TelarSav} : Windows{}) << told;
    if (!asked) continue;
    EXPECT_EQ(user.TakeTexts(),
              std::vector<std::string>{Unisci("Il file ", TestoPercorso(file), ' ', told,
                                              ": si desidera sovrascriverlo?")});
    EXPECT_EQ(ReadFile(file), bytes) << told;
    user.Answer(Risposta::Ok);
    SalvaCruciverba();
    user.TakeTexts();
    EXPECT_EQ(ReadFile(file), TestoDelCruciverba().value()) << told;
  }
}

TEST_F(FileCommands, SettingsAndTypefaceHaveTheirWindows) {
  ModoGriglia = ModoModifica;
  RegolaSchema();
  EXPECT_EQ(ModoGriglia, 1);
  ScegliCarattere();
  EXPECT_EQ(ModoGriglia, 0);
  EXPECT_EQ(window.shown, (Windows{Modale::Settaggi, Modale::fONTEN}));
}

TEST_F(FileCommands, NoneNeedsAGrid) {
  Draw({"CASA"});
  RidisegnaSchema();
  NoGrid();  // a damaged snapshot was read
  const std::pair<const char*, void (*)()> commands[] = {
      {"NuovoCruciverba", NuovoCruciverba},
      {"ApriConFinestra", ApriConFinestra},
      {"SalvaConNome", SalvaConNome},
      {"SalvaCruciverba", SalvaCruciverba},
      {"ScegliCarattere", ScegliCarattere},
      {"RegolaSchema", RegolaSchema},
      {"GestisciModelli", GestisciModelli},
      {"AttivaCasellaNera", AttivaCasellaNera},
      {"AttivaCasellaBianca", AttivaCasellaBianca},
      {"CambiaModoEdit", CambiaModoEdit},
      {"EntraInModifica", EntraInModifica},
      {"AggiungiColonna", AggiungiColonna},
      {"AggiungiRiga", AggiungiRiga},
      {"press", [] { PremiSullaSuperficie(TastoMouse::Sinistro, 500, 300); }},
      {"movement", [] { PassaSullaSuperficie(500, 300); }},
  };
  for (const auto& [name, command] : commands) {
    SCOPED_TRACE(name);
    command();
    EXPECT_EQ(NumColonne + NumRighe, 0);
    EXPECT_EQ(NomeCruciverba, "prova.tlrm");
    EXPECT_TRUE(user.TakeTexts().empty());
  }
}

}  // namespace
}  // namespace telarium
