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
constexpr const char* OnAFolder = "il nome \xE8 quello di una cartella";
constexpr Colore Grey = 0xC0C0C0;

// A surface that tells how it looked when a picture of it was taken.
class Photographed : public RecordingSurface {
 public:
  Colore pictureGround = 0;
  Texts pictured;

  std::optional<Zona> part;

  std::string Bitmap(const std::optional<Zona>& parte) override {
    part = parte;
    pictureGround = ground;
    pictured = Drawn();
    return bitmap;
  }

  // The texts since the surface was cleared: letters, then numbers.
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

  using Command = void (*)();

  Texts Files() const {
    const std::vector<Percorso> names = ElencaFile(CartellaProgramma, "*");
    return {names.begin(), names.end()};
  }
  std::string Made(const Percorso& name) { return ReadFile(InFolder(name)); }

  void DrawOnScreen() {
    Draw({"CA", "#."});
    RidisegnaSchema();
    whole = surface.Drawn();
  }

  // A picture on white was taken; the window is as it was before: grey, with letters, and so will
  // the next redraw be.
  void ExpectPictureOf(const Texts& pictured) {
    EXPECT_EQ(surface.pictureGround, ColoreBianco);
    EXPECT_EQ(surface.pictured, pictured);
    ExpectWindowBack();
  }
  void ExpectWindowBack() {
    EXPECT_EQ(surface.ground, Grey);
    EXPECT_EQ(NascondiSoluzioni, Falso);
    EXPECT_EQ(surface.Drawn(), whole);
  }

  void Save(std::optional<std::string> name) {
    user.AnswerText(std::move(name));
    SalvaPicture();
  }

  Texts whole;
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

class Pages : public Exports, public ::testing::WithParamInterface<Case> {
 protected:
  Percorso Source(const char* name) const {
    return Percorso(TELARIUM_SOURCE_DIR) / "tests/output/pages" / GetParam().folder / name;
  }

  void SetUp() override {
    Exports::SetUp();
    ASSERT_EQ(ApriCruciverba(Source("crossword.tlrm")), Apertura::Intera);
    SetName(GetParam().name);
    NomeFont = GetParam().typeface;
    surface.Corsivo(GetParam().italic);
    StampaSoluzioni = GetParam().hidden ? Vero : Falso;
    RidisegnaSchema();
  }
};

TEST_P(Pages, AreTheSameToTheByte) {
  const std::tuple<const char*, const char*, Command> pages[] = {
      {"static.html", "telarium_html.html", MostraPaginaStatica},
      {"static_word.html", "telarium_html.html", EsportaInWord},
      {"picture.html", "telarium_html.html", [] { StampaHTMLLarga(640); }},
      {"form.html", "telarium_form.html", PubblicaCruciverba},
      {"NONOME.TXT", "NONOME.TXT", EsportaInWordConPicture},
      {"NONOME.html", "NONOME.html", EsportaInWordConPicture},
  };
  int compared = 0;
  for (const auto& [expected, made, command] : pages) {
    if (!std::filesystem::exists(Source(expected))) continue;
    ++compared;
    command();
    EXPECT_EQ(FirstDifference(Made(made), ReadFile(Source(expected))), "") << expected;
  }
  EXPECT_GT(compared, 0);
}

TEST_P(Pages, GiveTheCrosswordBack) {
  const std::string page = PaginaInterattiva().value();
  const std::string block = page.substr(page.find(InizioDelBlocco) + InizioDelBlocco.size());
  ASSERT_TRUE(ApriTestoDiCruciverba(block));
  RidisegnaSchema();
  EXPECT_EQ(FirstDifference(TestoDelCruciverba().value(), ReadFile(Source("crossword.tlrm"))), "");
  EXPECT_EQ(FirstDifference(PaginaInterattiva().value(), page), "");
}

constexpr Case Cases[] = {
    {"small"},      {.folder = "hidden", .hidden = true},
    {"no_clues"},   {"italic_in_folder", "/casa/Perché no/gita.tlrm", "Times New Roman", true},
    {"black"},      {"one_column"},
    {"one_row"},    {"columns_19"},
    {"columns_20"}, {"columns_53"}};
INSTANTIATE_TEST_SUITE_P(, Pages, ::testing::ValuesIn(Cases),
                         [](const auto& info) { return std::string(info.param.folder); });

TEST_F(Exports, PagesOfOddGrids) {
  const auto count = [](const std::string& page, std::string_view part) {
    int times = 0;
    for (std::size_t at = page.find(part); at != page.npos; at = page.find(part, at + 1))
      ++times;
    return times;
  };
  const auto white = [](int columns, int rows) {
    return Texts(static_cast<std::size_t>(rows),
                 std::string(static_cast<std::size_t>(columns), 'a'));
  };
  const struct {
    Texts drawing;
    const char* part;
    int inPageToRead, inPageToSolve;
  } cases[] = {
      {white(33, 1), "<td width=\"3%\" height=", 33, 33},
      {white(34, 1), "<td width=\"2%\" height=", 34, 34},
      {white(53, 30), "   finite++;\r\n\r\n", 0, 1590},
      {white(53, 30), "theForm.num1590.value", 0, 1},
      {white(53, 30), " if(finite == 1590) {\r\n", 0, 1},
      // A letter that is no capital stands as it is, and no visitor can match it.
      {{"aB"}, ".value.toUpperCase( ) == \"a\")", 0, 1},
      {{"aB"}, "<font size=\"3\">a</td>", 1, 0},
  };
  for (const auto& [drawing, part, toRead, toSolve] : cases) {
    Draw(drawing);
    EXPECT_EQ(count(PaginaStatica(PaginaPerIlBrowser), part), toRead) << part;
    EXPECT_EQ(count(PaginaInterattiva().value(), part), toSolve) << part;
  }
}

TEST_F(Exports, ACharacterThatNoFileHoldsMakesNoPage) {
  Draw({"\xFF\xFF"});
  PubblicaCruciverba();
  EXPECT_EQ(user.TakeTexts(),
            Texts{WithCause(OutputError, InFolder("telarium_form.html"), CruciverbaNonScrivibile)});
  EXPECT_EQ(Files(), Texts());
}

TEST_F(Exports, WithoutAGridNoCommandDoesAnything) {
  WriteFile("template.txt", "' -----\r\n");
  for (const Command command : {MostraPaginaStatica, StampaHTML, PubblicaCruciverba, EsportaInWord,
                                EsportaInWordConPicture, EsportaDaModello, SalvaPicture})
    command();
  EXPECT_EQ(Files(), Texts{"template.txt"});
  EXPECT_TRUE(user.requests.empty() && machine.opened.empty() && machine.inWord.empty());
  EXPECT_TRUE(surface.calls.empty());
}

TEST_F(Exports, ThePictureLiesUnderBothItsNamesAndShowsNoSolutionsIfSoWanted) {
  DrawOnScreen();
  window.preview = true;  // left first
  ModoGriglia = ModoAnteprima;
  const std::tuple<bool, int, const char*> cases[] = {{false, 400, R"("400" height="300")"},
                                                      {true, 1600, R"("1600" height="1200")"}};
  for (const auto& [hidden, width, size] : cases) {
    StampaSoluzioni = hidden ? Vero : Falso;
    surface.bitmap = size;
    StampaHTMLLarga(width);
    ExpectPictureOf(hidden ? (Texts{"1", "2"}) : whole);
    EXPECT_EQ(Made("_filBMP_.BMP"), size);
    EXPECT_EQ(Made("_filbmp_.bmp"), size);
    EXPECT_NE(Made("telarium_html.html").find(Unisci("_filbmp_.bmp\" width=", size, "></p>\r\n")),
              std::string::npos);
    EXPECT_EQ(LarghezzaPicture, width);
  }
  EXPECT_EQ(machine.opened, Texts(2, InFolder("telarium_html.html")));
  EXPECT_FALSE(window.preview);
  EXPECT_NE(ModoGriglia, ModoAnteprima);
  EXPECT_EQ(SchemaModificato, Falso);
}

TEST_F(Exports, TheWordProcessorGetsTheTablePageOrTheDocumentThatTakesTheFilesIn) {
  DrawOnScreen();
  StampaSoluzioni = Vero;
  const std::string document = WriteFile("prendifiletelarium.doc", "{\\rtf1}");
  EsportaInWord();
  EsportaInWordConPicture();
  EXPECT_EQ(machine.inWord, (Texts{InFolder("telarium_html.html"), document}));
  ExpectPictureOf(whole);  // the letters are in it all the same
  EXPECT_EQ(Made("NONOME.BMP"), "bitmap");
  machine.hasWord = false;
  EsportaInWordConPicture();
  EXPECT_EQ(machine.opened, Texts{document}) << "without a word processor in what opens it";
  machine.opened.clear();
  machine.opens = false;
  EsportaInWord();
  EXPECT_TRUE(machine.opened.empty()) << "and nothing is said";
}

TEST_F(Exports, WithoutAProgramForPagesTheUserHearsOfIt) {
  Draw({"CASA"});
  machine.opens = false;
  for (const Command command : {MostraPaginaStatica, PubblicaCruciverba, StampaHTML})
    command();
  EXPECT_EQ(user.TakeTexts().size(), 3u);
  EXPECT_EQ(Files(),
            (Texts{"_filBMP_.BMP", "_filbmp_.bmp", "telarium_form.html", "telarium_html.html"}));
}

TEST_F(Exports, WhatCannotBeWrittenIsToldAndNotOpened) {
  DrawOnScreen();
  WriteFile("template.txt", "' -----\r\n");
  user.AnswerText("x.bmp");
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
      {"x.bmp", SalvaPicture},
  };
  for (const auto& [name, command] : cases) {
    SCOPED_TRACE(name);
    std::filesystem::remove(InFolder(name));
    std::filesystem::create_directory(InFolder(name));
    command();
    EXPECT_EQ(user.TakeTexts(), Texts{WithCause(OutputError, InFolder(name), OnAFolder)});
    ExpectWindowBack();
    std::filesystem::remove(InFolder(name));
  }
  Save("no such folder/x.bmp");
  const Texts before = Files();
  surface.bitmap.clear();  // a surface that gives no picture
  StampaHTML();
  EsportaInWordConPicture();
  Save("y.bmp");
  const Texts told = user.TakeTexts();
  ASSERT_EQ(told.size(), 4u);
  EXPECT_EQ(told[0], WithCause(OutputError, InFolder("no such folder/x.bmp"),
                               "il file o la cartella non esiste"));
  EXPECT_EQ(told[3], WithCause(OutputError, InFolder("y.bmp"), "la memoria è esaurita"_cp));
  EXPECT_EQ(Files(), before);
  EXPECT_TRUE(machine.opened.empty() && machine.inWord.empty());
}

TEST_F(Exports, TheThreeHandOverFilesAreWrittenTogetherOrStay) {
  DrawOnScreen();
  const Texts names = {"NONOME.BMP", "NONOME.TXT", "NONOME.html"};
  for (const std::string& blocked : names) {
    SCOPED_TRACE(blocked);
    for (const std::string& name : names)
      WriteFile(name, "old " + name);
    std::filesystem::remove(InFolder(blocked));
    std::filesystem::create_directory(InFolder(blocked));
    EsportaInWordConPicture();
    EXPECT_EQ(user.TakeTexts(), Texts{WithCause(OutputError, InFolder(blocked), OnAFolder)});
    std::filesystem::remove(InFolder(blocked));
    for (const std::string& name : names)
      EXPECT_TRUE(name == blocked || Made(name) == "old " + name) << name;
  }
  std::filesystem::create_directory(InFolder("NONOME.html"));
  std::filesystem::remove(InFolder("NONOME.TXT"));
  std::filesystem::remove(InFolder("NONOME.BMP"));
  EsportaInWordConPicture();
  EXPECT_EQ(user.TakeTexts(), Texts{WithCause(OutputError, InFolder("NONOME.html"), OnAFolder)});
  EXPECT_EQ(Files(), Texts()) << "none was there before";
}

TEST_F(Exports, ThePictureIsSavedWhereTheUserSaysAndItsNameProposedAgain) {
  DrawOnScreen();
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
  EXPECT_EQ(Made("gita perché.bmp"), "bitmap");
  EXPECT_EQ(machine.opened, Texts{InFolder("gita perché.bmp")});
  ExpectPictureOf(whole);  // with the letters in any case
  std::filesystem::create_directory(InFolder("sotto"));
  Save("sotto\\x.bmp");
  EXPECT_EQ(user.requests.back().predefinito, "gita perch\xE9.bmp");
  EXPECT_EQ(Made("sotto/x.bmp"), "bitmap");
}

TEST_F(Exports, ThePictureOfTheGridAloneIsToBeHadInTheSameQuestion) {
  SpessoreBordo = 3;
  DrawOnScreen();
  Save("window.bmp");
  EXPECT_FALSE(surface.part);
  user.tick = true;
  Save("grid.bmp");
  ASSERT_TRUE(surface.part);
  // Cells of 311 pixels at (189, 44), 2 pixels of ground and 3 of frame round them.
  EXPECT_EQ(surface.part->sinistra, 184);
  EXPECT_EQ(surface.part->cima, 39);
  EXPECT_EQ(surface.part->larghezza, 633);
  EXPECT_EQ(surface.part->altezza, 633);
  user.tick.reset();
  Save(std::nullopt);
  EXPECT_EQ(user.offeredTick, true) << "proposed again, like the name";
  EsportaInWordConPicture();
  StampaHTML();
  EXPECT_FALSE(surface.part) << "the other pictures are of the window";
}

TEST_F(Exports, TheSavedPictureNeedsANameAndLeaveToOverwrite) {
  DrawOnScreen();
  WriteFile("old.bmp", "old");
  surface.calls.clear();
  Save(std::nullopt);
  Save(" ");
  user.Answer(Risposta::Annulla);
  Save("old.bmp");
  EXPECT_TRUE(surface.calls.empty()) << "the window was left alone";
  EXPECT_EQ(Made("old.bmp"), "old");
  EXPECT_EQ(user.requests.back().predefinito, "NONOME.BMP");
  user.Answer(Risposta::Ok);
  Save("old.bmp");
  EXPECT_EQ(Made("old.bmp"), "bitmap");
  const std::vector<Messaggio> questions = user.TakeMessages();
  ASSERT_EQ(questions.size(), 2u);
  EXPECT_EQ(questions[0].testo, "Il file: old.bmp esiste gi\xE0, si vuole sovrascrivere?");
  EXPECT_EQ(questions[0].titolo, "Immagine gia' esistente");
  EXPECT_EQ(questions[0].pulsanti, Pulsanti::OkAnnulla);
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
  EXPECT_EQ(user.TakeTexts(), Texts{WithCause(OutputError, InFolder("template.txt"),
                                              "il file o la cartella non esiste")});
  EXPECT_EQ(Made("prova.html"), "old");
}

}  // namespace
}  // namespace telarium
