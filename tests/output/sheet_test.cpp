#include "output/sheet.h"

#include <algorithm>
#include <array>
#include <map>
#include <sstream>

#include "editor/cell_editing.h"
#include "editor/commands.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "editor/word_pointing.h"
#include "output/preview.h"
#include "output/printing.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Calls = std::vector<std::string>;

// A window of 1000 x 700 pixels with bars of 30 and 20.
class SheetTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    window.toolbarHeight = 30;
    window.statusBarHeight = 20;
    AltezzaCaratteri = 50;
    AltezzaNumeri = 20;
    PercentualeRiquadro = 90;
    DistanzaDaSpigolo = 5;
    DistanzaDaCentro = 10;
  }

  static void DrawEmpty(int columns, int rows) {
    Draw(std::vector<std::string>(static_cast<std::size_t>(rows),
                                  std::string(static_cast<std::size_t>(columns), '.')));
  }

  const Calls& Print() {
    StampaSchema();
    return sheet_ = platform.printer.printed;
  }

  const Calls& Preview() {
    platform.window.calls.clear();
    AnteprimaSchema();
    return sheet_ = platform.window.calls;
  }

  // The calls that begin with a word, without it.
  static Calls Of(const Calls& calls, std::string_view word) {
    Calls found;
    for (const std::string& call : calls) {
      if (call.starts_with(word) && call.substr(word.size(), 1) == " ")
        found.push_back(call.substr(word.size() + 1));
    }
    return found;
  }

  using Sizes = std::array<int, 3>;
  // Side, left and top of the grid on the last sheet, by the first square like the last one, which
  // is that of a cell; 0 without cells.
  Sizes Geometry() const {
    std::vector<Sizes> squares;
    for (const std::string& outline : Of(sheet_, "Riquadro")) {
      std::istringstream numbers(outline);
      int left = 0, top = 0, right = 0;
      numbers >> left >> top >> right;
      squares.push_back({right - left, left, top});
    }
    for (const Sizes& square : squares)
      if (square[0] == squares.back()[0]) return square;
    return {};
  }

  // Where the clues begin.
  static std::string PlaceOfClues(const Calls& calls) {
    return *std::prev(std::find(calls.begin(), calls.end(), "Scrivi ORIZZONTALI:"));
  }

  // All that is written behind the grid, a "|" where a line ends.
  static std::string Text(const Calls& calls) {
    std::string text;
    for (auto call = std::find(calls.begin(), calls.end(), "Scrivi ORIZZONTALI:");
         call != calls.end(); ++call) {
      if (call->starts_with("Scrivi ")) text += call->substr(7);
      if (call->starts_with("Posizione 0 ")) text += '|';
    }
    return text;
  }

  RecordingWindow window;

 private:
  Calls sheet_;  // the last one
};

TEST_F(SheetTest, LaysTheGridOutOnPaperAndInThePreview) {
  DrawEmpty(15, 13);
  const Calls& printed = Print();
  EXPECT_EQ(printed.front(), "ScalaSuperficie 1000 1422.02898551");
  EXPECT_EQ(Geometry(), (Sizes{47, 148, 58}));
  EXPECT_EQ(Of(printed, "Riquadro").front(), "145 55 856 672 0");
  EXPECT_EQ(PlaceOfClues(printed), "Posizione 83 679");

  const Calls& shown = Preview();
  EXPECT_EQ(
      Calls(shown.begin(), shown.begin() + 3),
      (Calls{"Pulisci", "RiquadroPieno 270 30 730 679 16777215", "Riquadro 270 30 730 679 128"}));
  EXPECT_EQ(Geometry(), (Sizes{17, 372, 77}));
  EXPECT_EQ(Of(shown, "Riquadro")[1], "370 75 629 300 0");
  EXPECT_EQ(Of(shown, "CorpoCarattere").back().substr(0, 5), "6.493");
  EXPECT_EQ(PlaceOfClues(shown), "Posizione 308 308");
}

// Cells of 304 units at (196, 59), types of those of 202.67.
TEST_F(SheetTest, PrintsASmallCrosswordCallByCall) {
  Draw({"AB", ".#"});
  SetColour(2, 2, 0x00FF00);
  NomeFont = "Courier New";
  SetHeader(1, "Autore     : Anna Rossi");
  SetClue(1, 1, Orizzontale, "Le prime\r\ndue");
  platform.printer.bold = true;
  SetName(InFolder("Il mio.v2.TLRM"));
  std::string printed;
  for (const std::string& call : Print())
    printed += call + '|';
  const std::string_view expected =
      "ScalaSuperficie 1000 1422.02898551|CorpoCarattere 101|Carattere Courier New|"  // 101.33
      "Riquadro 193 56 807 670 0|Riquadro 196 59 500 363 0|"
      "Posizione 323.75 183.884615385|Scrivi A|"  // 25.25 and 50.5 from the middle
      "Riquadro 500 59 804 363 0|Posizione 627.75 183.884615385|Scrivi B|"
      "Riquadro 196 363 500 667 0|Riquadro 500 363 804 667 0|"
      "RiquadroPieno 515.2 378.2 788.8 651.8 65280|"
      "CorpoCarattere 40.5333333333|Posizione 212.2 74.2|Scrivi 1|CorpoCarattere 8.25|"
      "Posizione 83 677|Grassetto si|Posizione 83 677|Scrivi ORIZZONTALI:|Posizione 0 685.25|"
      "Grassetto no|Posizione 83 685.25|Grassetto si|Scrivi 1|Grassetto no|"
      "Scrivi  Le prime due |Posizione 0 693.5|Posizione 0 701.75|"
      "Grassetto si|Posizione 83 701.75|Scrivi VERTICALI:|Posizione 0 710|"
      "Grassetto no|Posizione 83 710|Grassetto si|Scrivi 1|Grassetto no|"
      "Scrivi  ______________________________ |Posizione 0 718.25|Posizione 0 726.5|"
      "Posizione 83 726.5|Scrivi 05-03-2024   -   $|Posizione 0 734.75|"
      "Posizione 83 734.75|Scrivi Autore     : Anna Rossi|Posizione 0 743|Posizione 83 743|"
      "Scrivi Creazione e stampa con Telarium - www.telarium.example|Posizione 0 751.25|"
      "FineStampa|";
  const std::size_t name = expected.find('$');
  EXPECT_EQ(FirstDifference(printed, Unisci(expected.substr(0, name), NomeCruciverba.string(),
                                            expected.substr(name + 1))),
            "");
  EXPECT_EQ(platform.printer.jobs, Calls{"Il mio.v2"});
  EXPECT_FALSE(platform.printer.bold);
  EXPECT_TRUE(platform.window.calls.empty()) << "the window is not redrawn";
  EXPECT_EQ(user.pointerShapes, (std::vector<int>{PuntatoreClessidra, PuntatoreFreccia}));
}

// Cells of 110 pixels at (390, 78).
TEST_F(SheetTest, PlacesLettersAndNumbersOfThePreviewAsOnTheScreen) {
  Draw({"AB", ".#"});
  const Calls& calls = Preview();
  EXPECT_EQ(Geometry(), (Sizes{110, 390, 78}));
  const Calls types = Of(calls, "CorpoCarattere");
  EXPECT_EQ(types[0] + ' ' + types[1], "55 22");
  const Calls places = Of(calls, "Posizione");
  EXPECT_EQ(places[0], "431 116") << "13.75 and 27.5, each rounded, from the middle; 11 down";
  EXPECT_EQ(places[2], "397.5 83.5");
  EXPECT_EQ(Text(calls),
            "ORIZZONTALI:|1 ______________________________  ||VERTICALI:|"
            "1 ______________________________  |||05-03-2024   -   prova.tlrm|Autore     : Prova|"
            "Creazione e stampa con Telarium - www.telarium.example|");
}

TEST_F(SheetTest, ATypeBetweenTwoPointsIsTheEvenOne) {
  AltezzaCaratteri = 75;
  DrawEmpty(47, 1);
  EXPECT_EQ(Of(Print(), "CorpoCarattere")[0], "10") << "9.5: three quarters of 19 by 1.5";
  DrawEmpty(25, 1);
  EXPECT_EQ(Of(Preview(), "CorpoCarattere")[0], "10") << "10.5: three quarters of 14";
}

TEST_F(SheetTest, LettersOnPaperHaveFivePointsAtLeastAndNumbersAndSquaresWhatComesOfTheCell) {
  DrawEmpty(MaxColonne, MaxRighe);
  SetCell(2, 1, CellaNera);
  AltezzaCaratteri = 25;
  PercentualeRiquadro = 98;
  const Calls& calls = Print();
  EXPECT_EQ(Geometry()[0], 17);
  const Calls types = Of(calls, "CorpoCarattere");
  EXPECT_EQ(types[0] + ' ' + types[1], "5 2.26666666667") << "2.83 and 2.27";
  EXPECT_EQ(Of(calls, "RiquadroPieno"), Calls{"67.17 108.17 83.83 124.83 0"});
}

TEST_F(SheetTest, TheSheetIsAsWideAsTheWindowAndItsCluesHaveOneType) {
  DrawEmpty(15, 13);
  platform.window.width = 700;
  const Calls& calls = Print();
  EXPECT_EQ(calls.front(), "ScalaSuperficie 700 1422.02898551");
  EXPECT_EQ(Geometry()[0], 40) << "47 in a window of 1000";
  EXPECT_EQ(Of(calls, "CorpoCarattere").back(), "8.25");
}

TEST_F(SheetTest, APageWiderThanTheWindowStillHasAMarginAndItsTextMayPassTheEnd) {
  DrawEmpty(MaxColonne, MaxRighe);
  platform.window.width = 400;
  const Calls& calls = Preview();
  EXPECT_EQ(Of(calls, "RiquadroPieno").front(), "-30 30 430 679 16777215");
  EXPECT_EQ(Of(calls, "CorpoCarattere").back().substr(0, 6), "0.1443") << "of a band of 6";
  EXPECT_EQ(PlaceOfClues(calls).substr(0, 12), "Posizione 44");
  platform.window.width = 1000;
  for (int c = 1; c <= NumColonne; ++c)
    SetClue(c, 1, Verticale, std::string(300, 'x'));
  const std::string last = Of(Preview(), "Posizione").back();
  EXPECT_GT(std::stod(last.substr(last.find(' '))), 700) << "nothing is left out";
  EXPECT_NE(Text(platform.window.calls).find("Creazione e stampa"), std::string::npos);
}

TEST_F(SheetTest, LeavesOutTheSolutionsOnPaperAndInThePreview) {
  Draw({"AB#"});
  StampaSoluzioni = Vero;
  for (const Calls& calls : {Print(), Preview()}) {
    const Calls written = Of(calls, "Scrivi");
    EXPECT_EQ(Calls(written.begin(), written.begin() + 3), (Calls{"1", "ORIZZONTALI:", "1"}));
    EXPECT_TRUE(Of(calls, "RiquadroPieno").back().ends_with(" 0")) << "the black cell stays";
  }
}

TEST_F(SheetTest, AnEntryThatComesTooCloseToTheRightEdgeBeginsALine) {
  RecordingSurface surface;
  surface.CorpoCarattere(10);  // 5 units to a character
  // Lines end at 1000 - 200, and at 1000 less the margin.
  const struct {
    void (*write)(Superficie&, std::string_view, int);
    double x;  // where the entry of 20 characters begins
    bool fits;
    int margin = 83;
  } cases[] = {{StampaDefinizione, 700, true},         {StampaDefinizione, 700.5, true},
               {StampaDefinizione, 700.6, false},      {StampaDefinizione, 900, false},
               {AnteprimaDefinizione, 817, true},      {AnteprimaDefinizione, 818, false},
               {AnteprimaDefinizione, 592, true, 308}, {AnteprimaDefinizione, 593, false, 308}};
  for (const auto& one : cases) {
    surface.Posizione(one.x, 50);
    surface.calls.clear();
    one.write(surface, "12 la fine del mondo", one.margin);
    Calls all{"Posizione 0 60", Unisci("Posizione ", one.margin, " 60"),
              "Grassetto si",   "Scrivi 12",
              "Grassetto no",   "Scrivi  la fine del mondo"};
    if (one.fits) all.erase(all.begin(), all.begin() + 2);
    EXPECT_EQ(surface.calls, all) << one.x;
  }
  surface.calls.clear();
  StampaDefinizione(surface, "7 " + std::string(500, 'x'), 83);
  EXPECT_EQ(Of(surface.calls, "Scrivi").back(), ' ' + std::string(500, 'x')) << "never broken";
  AnteprimaDefinizione(surface, "senzaspazi", 83);
}

TEST_F(SheetTest, GoesOnOverFurtherPagesAndLosesNothing) {
  DrawEmpty(MaxColonne, MaxRighe);
  Calls clues;
  const auto next = [&clues] {
    clues.push_back(Unisci(' ', clues.size(), std::string(150, 'x'), ' '));
    return clues.back().substr(1, clues.back().size() - 2);
  };
  for (int c = 1; c <= MaxColonne; ++c)
    SetClue(c, 1, Verticale, next());
  for (int r = 1; r <= MaxRighe; ++r)
    SetClue(1, r, Orizzontale, next());
  platform.window.height = 400;
  const Calls& calls = Print();
  std::map<std::string, int> written;
  double y = 0;
  int pages = 1;
  for (const std::string& call : calls) {
    if (call.starts_with("Posizione ")) y = std::stod(call.substr(call.rfind(' ')));
    if (call.starts_with("Scrivi ")) {
      ++written[call.substr(7)];
      EXPECT_LE(y + 8.25, 812.6) << call;  // 400 pixels come to 812.59
    }
    if (call == "NuovaPagina") {
      ++pages;
      EXPECT_EQ((&call)[1].substr((&call)[1].rfind(' ')), " 50");
    }
  }
  EXPECT_GT(pages, 1);
  clues.push_back("VERTICALI:");
  clues.push_back("Creazione e stampa con Telarium - www.telarium.example");
  for (const std::string& clue : clues)
    EXPECT_EQ(written[clue], 1) << clue;
}

TEST_F(SheetTest, ForbidsWhatNeedsTheGridUntilThePreviewIsClosed) {
  Draw({"AB"});
  CambiaModoEdit();
  for (int button = 1; button <= NumPulsanti; ++button)
    window.AbilitaPulsante(button, true);
  window.CollocaLabel1(10, 10);
  window.MostraShape1({});
  platform.window.Grassetto(true);
  MarkModified(false);
  Preview();
  EXPECT_TRUE(platform.window.Grassetto());
  EXPECT_EQ(SchemaModificato, Falso);
  EXPECT_EQ(ModoGriglia, ModoAnteprima);
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
  EXPECT_TRUE(window.preview);
  EXPECT_FALSE(window.tipShows || window.rectangle);
  EXPECT_EQ(window.enabledButtons, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 21, 22}));
  EXPECT_FALSE(window.enabled["MenuEdit"] || window.enabled["MenuUtiliti"]);
  platform.window.Grassetto(false);
  Preview();
  EXPECT_FALSE(platform.window.Grassetto());
  Print();
  EXPECT_TRUE(window.preview) << "the toolbar's button prints without leaving it";

  for (void (*leave)() : {StampaDaMenu, ChiudiAnteprima, EntraInModifica}) {
    Preview();
    platform.window.calls.clear();
    leave();
    EXPECT_FALSE(window.preview);
    EXPECT_EQ(window.enabledButtons.size(), 22u);
    EXPECT_TRUE(window.enabled["MenuEdit"] && window.enabled["MenuUtiliti"] && window.editPressed);
    EXPECT_EQ(ModoGriglia, ModoModifica);
    EXPECT_FALSE(platform.window.calls.empty()) << "the grid is drawn again";
  }
  EXPECT_EQ(platform.printer.jobs.size(), 2u);
  window.CollocaLabel1(10, 10);
  StampaDaMenu();
  EXPECT_FALSE(window.tipShows);
}

TEST_F(SheetTest, TheMouseFindsTheGridOfTheWindowBehindAPrint) {
  Draw({"ABC", "...", "..."});
  EntraInModifica();
  const int side = LatoCasella;
  const double x = GeometriaDelloSchema().BordoSinistro(3) + side / 2.0 + 2;
  const double y = GeometriaDelloSchema().BordoAlto(1) + side / 2.0 - 2;
  Print();
  PassaSullaSuperficie(x, y);
  EXPECT_EQ(MouseCol, 3);
  EXPECT_EQ(MouseRiga, 1);
  EXPECT_EQ(LatoCasella, side);
  PrendiStrumento(Strumento::CasellaNera);
  PremiSullaSuperficie(TastoMouse::Sinistro, x, y);
  EXPECT_EQ(DrawingOfSchema()[0], "AB#");
}

TEST_F(SheetTest, DoesNothingWithoutACrosswordAPrinterOrTheUsersConsent) {
  StampaSchema();
  AnteprimaSchema();
  EXPECT_TRUE(platform.printer.jobs.empty() && platform.window.calls.empty() && !window.preview);
  Draw({"AB"});
  platform.printer.givenUp = true;
  StampaSchema();
  platform.hasPrinter = false;
  StampaSchema();
  platform.hasWindow = false;
  StampaSchema();
  AnteprimaSchema();
  EXPECT_TRUE(platform.printer.printed.empty());
  EXPECT_TRUE(user.pointerShapes.empty());
  EXPECT_EQ(LatoCasella, 0);
}

TEST_F(SheetTest, StaysSafeInAnyWindowWithAnySettings) {
  for (const int columns : {1, MaxColonne}) {
    DrawEmpty(columns, MaxRighe);
    for (const std::int16_t value : {-32768, 0, 32767}) {
      AltezzaCaratteri = AltezzaNumeri = PercentualeRiquadro = value;
      DistanzaDaSpigolo = DistanzaDaCentro = value;
      for (const double size : {0.0, 60.0, 500.0, 60000.0}) {
        platform.window.width = platform.window.height = size;
        EXPECT_FALSE(Of(Print(), "Scrivi").empty());
        EXPECT_GE(Geometry()[0], 0);
        for (const std::string& type : Of(Preview(), "CorpoCarattere"))
          EXPECT_GE(std::stod(type), 0);
        EXPECT_GE(Geometry()[0], 1);
      }
    }
  }
}

}  // namespace
}  // namespace telarium
