#include "editor/startup.h"

#include <filesystem>

#include "auxiliary/addresses.h"
#include "editor/activation.h"
#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/file_commands.h"
#include "editor/settings.h"
#include "editor/update_check.h"
#include "model/crossword_file.h"
#include "model/crossword_writer.h"
#include "support/drawn_crossword.h"
#include "support/ordinary_user.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> CrosswordEntries = {
    "menuSalva", "MenuSalvaCN",   "MenuEdit", "MenuUtiliti", "MenuStampa",
    "menurl",    "MenuAnteprima", "Meno3",    "Menuhtml",    "menujava"};

// A program folder with what a start needs, and a window.
class StartupTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    WriteFile("telarium.INI", "AltezzaCaratteri= 50 \r\nStampaSoluzioni=-1 \r\n");
    OpenDictionary({"CASA", "SOLE"});
    Forget();
    workingFolder_ = fs::current_path();
  }
  void TearDown() override {
    fs::current_path(workingFolder_);
    TelariumTest::TearDown();
  }

  void Start() {
    CaricaProgramma(InFolder(""));
    MostraAvvio();
    AttivaForm1();
  }

  // Starts with a crossword on the command line.
  Percorso StartWith(const std::vector<std::string>& rows) {
    const Percorso file = CrosswordFile("mio.tlrm", rows);
    RigaDiComando = file;
    Start();
    return file;
  }

  Messaggio OnlyMessage() {
    const auto messages = user.TakeMessages();
    EXPECT_EQ(messages.size(), 1u);
    return messages.at(0);
  }

  auto Calls(const char* name) const {
    return std::count(window.calls.begin(), window.calls.end(), name);
  }

  // Leaves a crossword file and no crossword.
  Percorso CrosswordFile(const std::string& name, const std::vector<std::string>& rows) {
    CartellaProgramma = InFolder("");
    Draw(rows);
    SetClue(1, 1, Orizzontale, "Una casa");
    EXPECT_TRUE(ScriviCruciverba(InFolder(name)));
    Forget();
    return InFolder(name);
  }

  RecordingWindow window;

 private:
  fs::path workingFolder_;
};

TEST_F(StartupTest, WithoutACrosswordShowsTheSplashAndDisablesItsCommands) {
  WriteFile(NomeIstantanea, "left over");
  Start();
  EXPECT_TRUE(window.splash);
  EXPECT_TRUE(window.enabledButtons.empty()) << "buttons 4 to 22";
  for (const std::string& entry : CrosswordEntries)
    EXPECT_EQ(window.enabled[entry], entry == "menurl") << entry;
  EXPECT_FALSE(fs::exists(InFolder(NomeIstantanea)));
  EXPECT_TRUE(fs::equivalent(fs::current_path(), InFolder("")));
  EXPECT_EQ(NomeFont, "Arial");
  EXPECT_EQ(dictionary.ContaLunghezza(1), 2) << "the dictionary is open";
  EXPECT_TRUE(window.checked["MenuVis"] && window.checked["Menurett"] && window.checked["MenuL1"]);
  EXPECT_FALSE(window.checked["MenuL2"]);
  EXPECT_TRUE(machine.fetched.empty()) << "no server is configured";
}

TEST_F(StartupTest, OpensTheCommandLineAtTheFirstActivationOnly) {
  const Percorso commandLine = StartWith({"CASA"});
  EXPECT_FALSE(window.splash);
  EXPECT_EQ(NomeCruciverba, commandLine);
  EXPECT_EQ(Drawing(), (std::vector<std::string>{"CASA"}));
  EXPECT_EQ(window.enabledButtons.size(), 19u);
  for (const std::string& entry : CrosswordEntries)
    EXPECT_TRUE(window.enabled[entry]) << entry;
  EXPECT_EQ(ReadFile(PercorsoIstantanea()), ReadFile(commandLine));

  SnapshotFromOutside(ContenutoDelFile(DrawnCrossword({"SOLE"})).value());
  window.calls.clear();
  window.preview = true;
  AttivaForm1();
  EXPECT_FALSE(window.preview);
  EXPECT_EQ(Drawing(), (std::vector<std::string>{"SOLE"}));
  EXPECT_EQ(Calls("CollocaPicture2"), 0);
}

TEST_F(StartupTest, AHostileCommandLineLeavesNoCrossword) {
  for (const char* bytes :
       {"", "a\r\nb\r\nc\r\nDimensioni : 99x99\r\n", "\177ELF\r\n\r\n\r\n\r\n"}) {
    Forget();
    RigaDiComando = WriteFile("bad.tlrm", bytes);
    Start();
    EXPECT_EQ(user.TakeTexts().size(), 1u);
    EXPECT_TRUE(NomeCruciverba.empty());
    EXPECT_TRUE(window.splash);
    EXPECT_FALSE(window.enabled["MenuEdit"]);
  }
  Forget();
  RigaDiComando = InFolder("missing.tlrm");
  EXPECT_THROW(Start(), ProgramFailed);
  OnlyMessage();
}

TEST_F(StartupTest, ACommandLineThatCannotBeTakenToTheSnapshotIsOpenAllTheSame) {
  RigaDiComando = CrosswordFile("mio.tlrm", {"CASA"});
  CaricaProgramma(InFolder(""));
  CartellaIstantanea = InFolder("manca");
  MostraAvvio();
  AttivaForm1();
  EXPECT_EQ(user.TakeTexts(), std::vector<std::string>{WithCause(
                                  "Errore di scrittura del file!", InFolder("manca/_tlma_32.tmp"),
                                  "il file o la cartella non esiste")});
  EXPECT_EQ(Drawing(), (std::vector<std::string>{"CASA"}));
}

TEST_F(StartupTest, AProtectedProgramFolderStaysAsItIsAndTheSnapshotLiesElsewhere) {
  const Percorso file = CrosswordFile("mio.tlrm", {"CASA"});
  const auto before = ElencaFile(InFolder(""), "*");
  fs::permissions(InFolder("telarium.INI"), fs::perms(0444));
  fs::permissions(InFolder(""), fs::perms(0555));
  EXPECT_TRUE(AsOrdinaryUser([&] {
    RigaDiComando = file;
    Start();
    const bool started = user.TakeTexts().empty() && FileOrdinario(PercorsoIstantanea()) &&
                         PercorsoIstantanea().parent_path() != InFolder("");
    CommutaStampaSoluzioni();
    const bool told = user.TakeTexts().size() == 1;
    Forget();  // removes the temporary folder
    return started && told;
  }));
  fs::permissions(InFolder(""), fs::perms(0755));
  EXPECT_EQ(ElencaFile(InFolder(""), "*"), before);
  EXPECT_NE(ReadFile(InFolder("telarium.INI")).find("StampaSoluzioni=-1"), std::string::npos);
}

TEST_F(StartupTest, AMissingSettingsFileOrDictionaryEndsTheProgram) {
  fs::remove(InFolder("LessicoItaliano.dat"));
  EXPECT_THROW(Start(), ProgramFailed);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  fs::remove(InFolder("telarium.INI"));
  EXPECT_THROW(Start(), ProgramFailed);
  const Messaggio told = OnlyMessage();
  EXPECT_EQ(told.testo,
            "Errore Fatale: Manca il file di inizializzazione : Telarium.ini. E' necessario "
            "reinstallare il programma.");
  EXPECT_EQ(told.icona, Icona::Stop);
}

TEST_F(StartupTest, OffersANewerVersionAndOnlyThat) {
  CartellaProgramma = InFolder("");
  WriteFile("INDIRIZZI.TXT", "x\r\n ServerAggiornamenti = server.example \r\nMenui0=\r\n");
  LeggiIndirizzi();
  EXPECT_EQ(ValoreIndirizzo(Indirizzo::Menui0), "");
  for (const char* text : {"701\n", "7010", "700\n", "", "\n", "<html>\n", "nan\n", "-999\n"}) {
    machine.fetches = text;
    ControllaAggiornamento();  // a question would fail the test
  }
  machine.fetches.reset();
  ControllaAggiornamento();
  EXPECT_EQ(machine.fetched.back(), "https://server.example/telarium/telarium_update.txt");

  machine.fetches = " 712\n";
  user.Answer(Risposta::No);
  ControllaAggiornamento();
  EXPECT_EQ(
      user.TakeTexts(),
      std::vector<std::string>{"Versione di Telarium installata sul PC in uso : 7.0.1\r\n"
                               "E' disponibile su Internet la nuova versione 7.1.2 di Telarium.\r\n"
                               "Si desidera scaricala ed installarla adesso? "});
  EXPECT_TRUE(machine.opened.empty());
  user.Answer(Risposta::Si);
  EXPECT_THROW(ControllaAggiornamento(), ProgramDone);
  EXPECT_EQ(machine.opened, std::vector<std::string>{"https://server.example/telarium/"});
  user.TakeTexts();
}

TEST_F(StartupTest, AWindowOfTheProgramQueuesOneActivationForTheEndOfItsCommand) {
  Start();
  const auto activations = [this] { return Calls("RinfrescaToolbar1"); };
  window.calls.clear();
  EseguiComandoDiFinestra([&] {  // a dialog that opens a dialog
    EseguiComandoDiFinestra([] { AccodaAttivazione(); });
    AccodaAttivazione();
    EXPECT_EQ(activations(), 0) << "not before the command has ended";
  });
  EXPECT_EQ(activations(), 1);
  EseguiComandoDiFinestra([] { Avvisa("a message after a fetch"); });
  EXPECT_EQ(activations(), 1) << "a message box queues none";
  user.TakeTexts();

  EXPECT_THROW(EseguiComandoDiFinestra([] {
                 AccodaAttivazione();
                 EsciDalProgramma();
               }),
               ProgramDone);
  EXPECT_EQ(activations(), 1) << "never after the end";
  EseguiComandoDiFinestra([] {});
  EXPECT_EQ(activations(), 1);
}

TEST_F(StartupTest, AWindowShownByTheFirstActivationQueuesASecondOne) {
  CaricaProgramma(InFolder(""));
  MostraAvvio();
  window.whenPlaced = [] { AccodaAttivazione(); };  // as the tip of the day will
  window.calls.clear();
  EseguiComandoDiFinestra(AccodaAttivazione);
  EXPECT_EQ(Calls("CollocaPicture2"), 1);
  EXPECT_EQ(Calls("RinfrescaToolbar1"), 2);
}

TEST_F(StartupTest, SavesWhatTheUserWantsSavedAndEndsEitherWay) {
  const Percorso file = StartWith({"CASA"});
  MarkModified();
  SetLine(1, "S.O.L.E.");
  user.Answer(Risposta::Annulla);
  EXPECT_THROW(EsciDalProgramma(), ProgramDone);
  const Messaggio asked = OnlyMessage();
  EXPECT_EQ(asked.titolo, "Modifica del file corrente");
  EXPECT_EQ(asked.pulsanti, Pulsanti::OkAnnulla);
  EXPECT_NE(ReadFile(file).find(']'), std::string::npos);
  EXPECT_EQ(SchemaModificato, Vero);
  EXPECT_FALSE(fs::exists(PercorsoIstantanea()));

  const std::string before = ReadFile(file);
  user.Answer(Risposta::Ok);
  EXPECT_THROW(EsciDalProgramma(), ProgramDone);
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_NE(ReadFile(file), before);
  user.TakeTexts();
  EXPECT_THROW(EsciDalProgramma(), ProgramDone) << "without a question";

  MarkModified();
  SetName(InFolder("nowhere/mio.tlrm"));
  user.Answer(Risposta::Ok);
  EXPECT_NO_THROW(EsciDalProgramma()) << "a save that failed costs no work";
  user.Answer(Risposta::Ok);
  ApriDaFuori(file);
  EXPECT_EQ(NomeCruciverba, InFolder("nowhere/mio.tlrm"));
  EXPECT_EQ(user.TakeTexts().size(), 4u) << "two questions, two failures";
  SetName(file);
  NoGrid();  // a damaged snapshot was read
  const std::string whole = ReadFile(file);
  SalvaCruciverba();
  EXPECT_EQ(ReadFile(file), whole);
  EXPECT_EQ(window.shown.size(), 1u) << "without a grid nothing is written over";
}

TEST_F(StartupTest, LeavingAPreviewAllowsAllCommandsAndEntersEditing) {
  StartWith({"CASA"});
  for (const auto command : {SalvaCruciverba, ApriAiuto}) {
    ModoGriglia = -1;
    window.preview = true;
    window.editPressed = window.enabled["MenuEdit"] = window.enabled["MenuUtiliti"] = false;
    for (int button = 8; button <= 20; ++button)
      window.enabledButtons.erase(button);
    ImpostaPuntatoreMouse(11);
    command();
    EXPECT_FALSE(window.preview);
    EXPECT_EQ(window.enabledButtons.size(), 19u);
    EXPECT_TRUE(window.enabled["MenuEdit"] && window.enabled["MenuUtiliti"] && window.editPressed);
    EXPECT_EQ(ModoGriglia, 1);
    EXPECT_EQ(PuntatoreMouse, 0);
  }
  window.editPressed = false;
  CambiaModoEdit();
  EXPECT_EQ(ModoGriglia, 0);
}

TEST_F(StartupTest, TheGuideOpensAsAPageWhereNothingShowsWebArchives) {
  StartWith({"CASA"});
  WriteFile("telarium7.MHT", "x");
  const std::string archive = InFolder("telarium7.MHT").string();
  const std::string page = InFolder("TELARIUM7.html").string();
  ApriAiuto();
  EXPECT_EQ(machine.opened, std::vector{archive});
  machine.opened.clear();
  machine.unshown = ".MHT";
  ApriAiuto();
  EXPECT_EQ(machine.opened, (std::vector{archive, page}));
  EXPECT_TRUE(user.TakeTexts().empty());
  machine.opens = false;
  ApriAiuto();
  EXPECT_EQ(user.TakeTexts().size(), 1u);
}

TEST_F(StartupTest, LanguagesSettingsAndCompanionsDoAsTheirEntriesSay) {
  StartWith({"CASA"});
  WriteFile("lessicolatino.DAT", ReadFile(InFolder("LessicoItaliano.dat")));
  SetClue(1, 1, Orizzontale, "Si abita");
  CambiaLingua(3);
  EXPECT_EQ(dictionary.NomeDizionario(), "LessicoLatino.dat");
  EXPECT_EQ(Drawing(), std::vector<std::string>{"CASA"}) << "the crossword stays";
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "Si abita");
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_TRUE(window.checked["MenuL3"]);
  EXPECT_FALSE(window.checked["MenuL1"]);
  fs::remove(InFolder("lessicolatino.DAT"));
  CambiaLingua(3);  // the current one: nothing is opened
  EXPECT_THROW(CambiaLingua(4), ProgramFailed);
  EXPECT_EQ(user.TakeTexts().size(), 1u);

  platform.window.calls.clear();
  RegolaSchema();
  EXPECT_EQ(window.shown.back(), Modale::Settaggi);
  EXPECT_FALSE(platform.window.calls.empty()) << "the grid is drawn anew, however it was closed";

  CommutaStampaSoluzioni();
  CommutaRettangoloParola();
  EXPECT_EQ(ReadFile(InFolder("telarium.INI")).find("RettangoloParola= 0 \r\nTastoSin= 0 \r\n"),
            0u);

  LanciaLudarium();
  EXPECT_EQ(machine.started, std::vector<std::string>{InFolder("Ludarium.EXE").string()});
  machine.startError = std::make_error_code(std::errc::no_such_file_or_directory);
  LanciaLudarium();
  const Messaggio told = OnlyMessage();
  EXPECT_EQ(told.testo, "Errore 2 - Non trovato Ludarium.exe controllare installazione.");
  EXPECT_EQ(told.icona, Icona::Domanda);
}

TEST_F(StartupTest, AFileFromOutsideIsOpenedAfterTheSavingQuestionOrLeavesEverything) {
  const Percorso other = CrosswordFile("altro.tlrm", {"SOLE", "...."});
  const Percorso mine = StartWith({"CASA"});
  SetClue(1, 1, Orizzontale, "Non salvata");
  ConsolidaSchema();
  SetClue(2, 1, Orizzontale, "Di nessuna parola");
  const Percorso tooBig = WriteFile("big.tlrm", ReadFile(other));
  fs::resize_file(tooBig, MaxByteCruciverba + 1);
  for (const Percorso& bad :
       {InFolder("missing.tlrm"), InFolder(""), tooBig, WriteFile("bad.tlrm", "x"),
        WriteFile("size.tlrm", "a\r\nb\r\nc\r\nDimensioni : 99x99\r\n")}) {
    ApriDaFuori(bad);
    AttivaForm1();
    EXPECT_EQ(user.TakeTexts().size(), 1u);
    EXPECT_EQ(NomeCruciverba, mine);
    EXPECT_EQ(Drawing(), (std::vector<std::string>{"CASA"}));
    EXPECT_EQ(Definizione(1, 1, Orizzontale), "Non salvata");
    EXPECT_EQ(Definizione(2, 1, Orizzontale), "Di nessuna parola");
  }
  MarkModified();
  user.Answer(Risposta::Annulla);
  window.splash = true;
  ApriDaFuori(other);
  EXPECT_FALSE(window.splash);
  AttivaForm1();
  user.TakeTexts();
  EXPECT_EQ(NomeCruciverba, other);
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_EQ(ModoGriglia, 1);
  EXPECT_EQ(Drawing(), (std::vector<std::string>{"SOLE", "...."}));
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "Una casa");
}

}  // namespace
}  // namespace telarium
