#include "editor/redraw.h"
#include "editor/settings.h"
#include "model/crossword_file.h"
#include "output/interactive_page.h"
#include "output/picture_page.h"
#include "output/script_page.h"
#include "output/static_page.h"
#include "output/window_picture.h"
#include "output/word_export.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* OutputError =
    "Si \xE8 verificato un errore di scrittura/accesso al file o drive!, controlla che "
    "eventualmente i files non siano impostati a sola lettura.";
constexpr Colore Grey = 0xC0C0C0;

// A surface that tells how it looked when a picture of it was taken.
class Photographed : public RecordingSurface {
 public:
  struct Picture {
    Colore ground = 0;
    Texts drawn;  // texts since the surface was cleared
  };
  std::vector<Picture> pictures;

  std::string Bitmap() override {
    pictures.push_back({ground, Drawn()});
    return bitmap;
  }

  // The texts on the surface: letters, then numbers.
  Texts Drawn() const {
    Texts drawn;
    for (const std::string& call : calls) {
      if (call == "Pulisci") drawn.clear();
      if (call.starts_with("Scrivi ")) drawn.push_back(call.substr(7));
    }
    return drawn;
  }
};

class Exports : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    platform.surface = &surface;
  }

  // The commands of the menus that need a grid, by their entries.
  using Command = void (*)();
  static constexpr std::pair<const char*, Command> Commands[] = {
      {"menusphtml", MostraPaginaStatica},   {"mENU400", [] { StampaHTMLLarga(400); }},
      {"menujava", PubblicaCruciverba},      {"Menuhtmlword", EsportaInWord},
      {"menuwpic", EsportaInWordConPicture}, {"menuvbhtml", EsportaDaModello},
      {"MenuSaveWMF", SalvaPicture},
  };

  Texts Files() const {
    const std::vector<Percorso> names = ElencaFile(CartellaProgramma, "*");
    return {names.begin(), names.end()};
  }
  std::string Made(const Percorso& name) { return ReadFile(InFolder(name)); }

  // The window is as it was before an export: grey, with letters, and so will the next redraw be.
  void ExpectWindowBack(const Texts& drawn) {
    EXPECT_EQ(surface.ground, Grey);
    EXPECT_EQ(NascondiSoluzioni, Falso);
    EXPECT_EQ(surface.Drawn(), drawn);
  }

  Photographed surface;
  RecordingWindow window;
};

// A folder below tests/output/pages: a crossword and pages that were made by hand from it.
struct Case {
  const char* folder;
  const char* name = "prova.tlrm";
  const char* typeface = "";
  bool italic = false;
  bool hidden = false;
};

void PrintTo(const Case& one, std::ostream* out) {
  *out << one.folder;
}

class Pages : public Exports, public ::testing::WithParamInterface<Case> {
 protected:
  Percorso Source(const char* name) const {
    return Percorso(TELARIUM_SOURCE_DIR) / "tests/output/pages" / GetParam().folder / name;
  }

  void SetUp() override {
    Exports::SetUp();
    ASSERT_EQ(ApriCruciverba(Source("crossword.tlrm")), Apertura::Intera);
    NomeCruciverba = GetParam().name;
    NomeFont = GetParam().typeface;
    surface.Corsivo(GetParam().italic);
    StampaSoluzioni = GetParam().hidden ? Vero : Falso;
    RidisegnaSchema();
  }

  // Compares what a command makes, if the folder says what it has to be.
  int Compare(const char* expected, const char* made, Exports::Command command) {
    if (!std::filesystem::exists(Source(expected))) return 0;
    SCOPED_TRACE(expected);
    command();
    EXPECT_EQ(FirstDifference(Made(made), ReadFile(Source(expected))), "");
    return 1;
  }
};

TEST_P(Pages, AreTheSameToTheByte) {
  int compared = 0;
  compared += Compare("static.html", "telarium_html.html", MostraPaginaStatica);
  compared += Compare("static_word.html", "telarium_html.html", EsportaInWord);
  compared += Compare("picture.html", "telarium_html.html", [] { StampaHTMLLarga(640); });
  compared += Compare("form.html", "telarium_form.html", PubblicaCruciverba);
  compared += Compare("NONOME.TXT", "NONOME.TXT", EsportaInWordConPicture);
  compared += Compare("NONOME.html", "NONOME.html", EsportaInWordConPicture);
  EXPECT_GT(compared, 0);
}

TEST_P(Pages, GiveTheCrosswordBack) {
  const std::string file = ReadFile(Source("crossword.tlrm"));
  const std::string page = PaginaInterattiva().value();
  const std::string block = page.substr(page.find(InizioDelBlocco) + InizioDelBlocco.size());
  EXPECT_TRUE(block.starts_with(file + " FINE CODICE HTML SALVATAGGIO -->\r\n"));
  ASSERT_EQ(ApriTestoDiCruciverba(block), Apertura::Intera);
  RidisegnaSchema();
  EXPECT_EQ(FirstDifference(TestoDelCruciverba().value(), file), "");
  EXPECT_EQ(FirstDifference(PaginaInterattiva().value(), page), "");
}

INSTANTIATE_TEST_SUITE_P(, Pages,
                         ::testing::Values(Case{"small"}, Case{.folder = "hidden", .hidden = true},
                                           Case{.folder = "italic_in_folder",
                                                .name = "/casa/Perché no/gita.tlrm",
                                                .typeface = "Times New Roman",
                                                .italic = true},
                                           Case{"no_clues"}, Case{"black"}, Case{"one_column"},
                                           Case{"one_row"}, Case{"columns_19"}, Case{"columns_20"},
                                           Case{"columns_53"}),
                         [](const auto& info) { return std::string(info.param.folder); });

TEST_F(Exports, AFullGridHasACheckForEachOfItsCells) {
  Draw(Texts(30, std::string(53, 'A')));
  const std::string page = PaginaInterattiva().value();
  EXPECT_NE(page.find(R"(<input type="text" name="num1590" size="1")"), std::string::npos);
  EXPECT_LT(page.find("theForm.num1590.value"), page.find("theForm.num1.value"));
  EXPECT_NE(page.find(" if(finite == 1590) {\r\n"), std::string::npos);
}

TEST_F(Exports, ACharacterThatNoFileHoldsMakesNoPage) {
  Draw({"\xFF\xFF"});
  PubblicaCruciverba();
  EXPECT_EQ(user.TakeTexts(), Texts{OutputError});
  EXPECT_EQ(Files(), Texts());
}

TEST_F(Exports, WithoutAGridNoCommandDoesAnything) {
  WriteFile("template.txt", "' -----\r\n");
  for (const auto& [entry, command] : Commands) {
    SCOPED_TRACE(entry);
    command();
  }
  EXPECT_EQ(Files(), Texts{"template.txt"});
  EXPECT_TRUE(user.requests.empty() && machine.opened.empty() && machine.inWord.empty());
  EXPECT_TRUE(surface.calls.empty());
}

TEST_F(Exports, ThePictureLiesUnderBothItsNamesAndShowsNoSolutionsIfSoWanted) {
  Draw({"CA", "#."});
  RidisegnaSchema();
  const Texts whole = surface.Drawn();
  for (const bool hidden : {false, true}) {
    StampaSoluzioni = hidden ? Vero : Falso;
    surface.bitmap = hidden ? "without letters" : "with letters";
    StampaHTMLLarga(400);
    EXPECT_EQ(surface.pictures.back().ground, ColoreBianco);
    EXPECT_EQ(surface.pictures.back().drawn, hidden ? (Texts{"1", "2"}) : whole);
    EXPECT_EQ(Made("_filBMP_.BMP"), surface.bitmap);
    EXPECT_EQ(Made("_filbmp_.bmp"), surface.bitmap);
    ExpectWindowBack(whole);
  }
  EXPECT_EQ(machine.opened, Texts(2, InFolder("telarium_html.html")));
  EXPECT_EQ(SchemaModificato, Falso);
}

TEST_F(Exports, ThePictureIsShownThreeQuartersAsHighAsWide) {
  Draw({"CASA"});
  const std::pair<int, const char*> sizes[] = {
      {400, R"("400" height="300")"},   {640, R"("640" height="480")"},
      {800, R"("800" height="600")"},   {1024, R"("1024" height="768")"},
      {1280, R"("1280" height="960")"}, {1600, R"("1600" height="1200")"}};
  for (const auto& [width, size] : sizes) {
    StampaHTMLLarga(width);
    EXPECT_NE(Made("telarium_html.html").find(Unisci("_filbmp_.bmp\" width=", size, "></p>\r\n")),
              std::string::npos)
        << width;
    EXPECT_EQ(LarghezzaPicture, width);
  }
}

TEST_F(Exports, APictureLeavesThePreviewFirst) {
  for (const Command command :
       {Command{StampaHTML}, Command{EsportaInWordConPicture}, Command{SalvaPicture}}) {
    Draw({"CASA"});
    window.preview = true;
    ModoGriglia = ModoAnteprima;
    if (command == Command{SalvaPicture}) user.AnswerText("x.bmp");
    command();
    EXPECT_FALSE(window.preview);
    EXPECT_NE(ModoGriglia, ModoAnteprima);
    EXPECT_FALSE(surface.pictures.back().drawn.empty());
  }
}

TEST_F(Exports, TheWordProcessorGetsTheTablePageIfThereIsOne) {
  Draw({"CASA"});
  EsportaInWord();
  EXPECT_EQ(machine.inWord, Texts{InFolder("telarium_html.html")});
  machine.inWord.clear();
  machine.hasWord = machine.opens = false;
  EsportaInWord();
  EXPECT_TRUE(machine.opened.empty()) << "and nothing is said";
}

TEST_F(Exports, TheDocumentThatTakesTheFilesInIsOpened) {
  Draw({"CA", "#."});
  RidisegnaSchema();
  const Texts whole = surface.Drawn();
  StampaSoluzioni = Vero;
  const std::string document = WriteFile("prendifiletelarium.doc", "{\\rtf1}");
  EsportaInWordConPicture();
  EXPECT_EQ(surface.pictures.back().drawn, whole) << "the letters are in it all the same";
  EXPECT_EQ(surface.pictures.back().ground, ColoreBianco);
  EXPECT_EQ(Made("NONOME.BMP"), "bitmap");
  ExpectWindowBack(whole);
  machine.hasWord = false;
  EsportaInWordConPicture();
  EXPECT_EQ(machine.inWord, Texts{document});
  EXPECT_EQ(machine.opened, Texts{document}) << "without a word processor in what opens it";
}

TEST_F(Exports, WithoutAProgramForPagesTheUserHearsOfIt) {
  Draw({"CASA"});
  machine.opens = false;
  MostraPaginaStatica();
  PubblicaCruciverba();
  StampaHTML();
  EXPECT_EQ(user.TakeTexts().size(), 3u);
  EXPECT_EQ(Files(),
            (Texts{"_filBMP_.BMP", "_filbmp_.bmp", "telarium_form.html", "telarium_html.html"}));
}

TEST_F(Exports, WhatCannotBeWrittenIsToldAndNotOpened) {
  Draw({"CASA"});
  RidisegnaSchema();
  const Texts whole = surface.Drawn();
  WriteFile("template.txt", "' -----\r\n");
  const std::pair<const char*, Command> cases[] = {
      {"telarium_html.html", MostraPaginaStatica},
      {"telarium_html.html", EsportaInWord},
      {"telarium_html.html", StampaHTML},
      {"_filBMP_.BMP", StampaHTML},
      {"_filbmp_.bmp", StampaHTML},
      {"telarium_form.html", PubblicaCruciverba},
      {"NONOME.BMP", EsportaInWordConPicture},
      {"NONOME.TXT", EsportaInWordConPicture},
      {"NONOME.html", EsportaInWordConPicture},
      {"prova.html", EsportaDaModello},
  };
  for (const auto& [name, command] : cases) {
    SCOPED_TRACE(name);
    std::filesystem::remove(InFolder(name));
    std::filesystem::create_directory(InFolder(name));
    command();
    EXPECT_EQ(user.TakeTexts(), Texts{OutputError});
    std::filesystem::remove(InFolder(name));
  }
  EXPECT_TRUE(machine.opened.empty() && machine.inWord.empty());
  ExpectWindowBack(whole);
}

TEST_F(Exports, ASurfaceThatGivesNoPictureIsToldAsWell) {
  Draw({"CASA"});
  surface.bitmap.clear();
  StampaHTML();
  EsportaInWordConPicture();
  EXPECT_EQ(user.TakeTexts(), Texts(2, OutputError));
  EXPECT_EQ(Files(), Texts());
  EXPECT_TRUE(machine.opened.empty() && machine.inWord.empty());
}

class SavedPicture : public Exports {
 protected:
  void SetUp() override {
    Exports::SetUp();
    Draw({"CA", "#."});
    RidisegnaSchema();
    whole = surface.Drawn();
  }

  void Save(std::optional<std::string> name) {
    user.AnswerText(std::move(name));
    SalvaPicture();
    ExpectWindowBack(whole);
  }
  std::string Proposal() {
    Save(std::nullopt);
    return user.requests.back().predefinito;
  }

  Texts whole;
};

TEST_F(SavedPicture, GoesWhereTheUserSaysAndIsProposedAgain) {
  StampaSoluzioni = Vero;
  window.tipShows = true;
  Save("gita perch\xE9.bmp");
  EXPECT_FALSE(window.tipShows);
  const RichiestaDiTesto asked = user.requests.back();
  EXPECT_EQ(asked.titolo, "Salvataggio picture .BMP");
  EXPECT_EQ(asked.predefinito, "NONOME.BMP");
  EXPECT_EQ(asked.richiesta,
            Unisci("Con questa operazione \xE8 possibile creare una immagine in formato BMP (per "
                   "importarla eventualmente con Paint Brush o altro).  Nome della picture da "
                   "salvare nella directory ",
                   TestoPercorso(CartellaProgramma)));
  const Percorso file = InFolder("gita perché.bmp");
  EXPECT_EQ(ReadFile(file), "bitmap");
  EXPECT_EQ(machine.opened, Texts{file});
  EXPECT_EQ(surface.pictures.back().ground, ColoreBianco);
  EXPECT_EQ(surface.pictures.back().drawn, whole) << "with the letters in any case";
  EXPECT_EQ(Proposal(), "gita perch\xE9.bmp");
  std::filesystem::create_directory(InFolder("sotto"));
  Save("sotto\\x.bmp");
  EXPECT_EQ(ReadFile(InFolder("sotto/x.bmp")), "bitmap");
}

TEST_F(SavedPicture, NeedsANameAndLeaveToOverwrite) {
  WriteFile("old.bmp", "old");
  surface.calls.clear();
  user.AnswerText(std::nullopt);
  SalvaPicture();
  user.AnswerText(" ");
  SalvaPicture();
  user.AnswerText("old.bmp");
  user.Answer(Risposta::Annulla);
  SalvaPicture();
  EXPECT_TRUE(surface.calls.empty()) << "the window was left alone";
  EXPECT_EQ(Made("old.bmp"), "old");
  EXPECT_EQ(user.requests.back().predefinito, "NONOME.BMP");
  user.AnswerText("old.bmp");
  user.Answer(Risposta::Ok);
  SalvaPicture();
  EXPECT_EQ(Made("old.bmp"), "bitmap");
  const std::vector<Messaggio> questions = user.TakeMessages();
  ASSERT_EQ(questions.size(), 2u);
  EXPECT_EQ(questions[0].testo, "Il file: old.bmp esiste gi\xE0, si vuole sovrascrivere?");
  EXPECT_EQ(questions[0].titolo, "Immagine gia' esistente");
  EXPECT_EQ(questions[0].pulsanti, Pulsanti::OkAnnulla);
}

TEST_F(SavedPicture, ThatCannotBeWrittenIsToldAndNotOpened) {
  Save("no such folder/x.bmp");
  std::filesystem::create_directory(InFolder("x.bmp"));
  Save("x.bmp");
  surface.bitmap.clear();
  Save("y.bmp");
  EXPECT_EQ(user.TakeTexts(), Texts(3, OutputError));
  EXPECT_TRUE(machine.opened.empty());
  EXPECT_EQ(Files(), Texts());
}

TEST_F(Exports, ATemplateGetsTheWordsInPlaceOfItsMark) {
  Draw({"CASA#", "\xC8.#P\xC0", "R#O#I"});
  WriteFile("TEMPLATE.txt", "uno\r\n  ' ----- qui --  \r\n due '-----\r\n' ----\r\n' -----");
  const std::string words = "\"CASA\", \r\n\"\xC8.\", \r\n\"P\xC0\", \r\n";
  const std::string data =
      Unisci("CrosswordWidth = 5\r\nCrosswordHeight = 3\r\nWords = 100\r\nWord = Array(\r\n", words,
             words, ")\r\nClue = Array(\r\n", words, "LastHorizontalWord = 1\r\n");
  EsportaDaModello();
  EXPECT_EQ(FirstDifference(Made("prova.html"),
                            Unisci("uno\r\n", data, " due '-----\r\n' ----\r\n", data)),
            "");
  EXPECT_TRUE(machine.opened.empty());
  std::filesystem::remove(InFolder("TEMPLATE.txt"));
  WriteFile("prova.html", "old");
  EsportaDaModello();
  EXPECT_EQ(user.TakeTexts(), Texts{OutputError});
  EXPECT_EQ(Made("prova.html"), "old");
}

}  // namespace
}  // namespace telarium
