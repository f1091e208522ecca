#include "output/sheet.h"

#include <algorithm>
#include <map>

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
    return platform.printer.printed;
  }

  const Calls& Preview() {
    platform.window.calls.clear();
    AnteprimaSchema();
    return platform.window.calls;
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

  // The calls from the first one that writes this on.
  static Calls From(const Calls& calls, const std::string& text) {
    return Calls(std::find(calls.begin(), calls.end(), "Scrivi " + text), calls.end());
  }

  // All that is written behind the grid, a "|" where a line ends.
  static std::string Text(const Calls& calls) {
    std::string text;
    for (const std::string& call : From(calls, "ORIZZONTALI:")) {
      if (call.starts_with("Scrivi ")) text += call.substr(7);
      if (call.starts_with("Posizione 0 ")) text += '|';
    }
    return text;
  }

  RecordingWindow window;
};

TEST_F(SheetTest, LaysTheGridOutOnPaper) {
  DrawEmpty(15, 13);
  const Calls& calls = Print();
  EXPECT_EQ(calls.front(), "ScalaSuperficie 1000 1422.02898551");
  EXPECT_EQ(calls.back(), "FineStampa");
  EXPECT_EQ(LatoCasella, 47);
  EXPECT_EQ(OrigineX, 148);
  EXPECT_EQ(OrigineY, 58);
  EXPECT_EQ(Of(calls, "Riquadro").front(), "145 55 856 672 0");
  EXPECT_EQ(*std::prev(std::find(calls.begin(), calls.end(), "Scrivi ORIZZONTALI:")),
            "Posizione 83 679");
}

TEST_F(SheetTest, LaysTheGridOutInThePreview) {
  DrawEmpty(15, 13);
  const Calls& calls = Preview();
  const Calls head(calls.begin(), calls.begin() + 3);
  EXPECT_EQ(head, (Calls{"Pulisci", "RiquadroPieno 270 30 730 679 16777215",
                         "Riquadro 270 30 730 679 128"}));
  EXPECT_EQ(LatoCasella, 17);
  EXPECT_EQ(OrigineX, 372);
  EXPECT_EQ(OrigineY, 77);
  EXPECT_EQ(Of(calls, "Riquadro")[1], "370 75 629 300 0");
  EXPECT_EQ(Of(calls, "CorpoCarattere").back().substr(0, 5), "6.493");
  EXPECT_EQ(*std::prev(std::find(calls.begin(), calls.end(), "Scrivi ORIZZONTALI:")),
            "Posizione 308 308");
}

// Cells of 304 units at (196, 59), types of those of 202.67.
TEST_F(SheetTest, PrintsASmallCrosswordCallByCall) {
  Draw({"AB", ".#"});
  ColoreCasella(2, 2) = 0x00FF00;
  NomeFont = "Courier New";
  Schema(1) = "Autore     : Anna Rossi";
  Definizione(1, 1, Orizzontale) = "Le prime\r\ndue";
  platform.printer.bold = true;
  NomeCruciverba = InFolder("Il mio.v2.TLRM");
  const Calls& calls = Print();
  const Calls grid(calls.begin() + 1, std::find(calls.begin(), calls.end(), "CorpoCarattere 8.25"));
  EXPECT_EQ(grid, (Calls{"CorpoCarattere 101",  // 101.33
                         "Carattere Courier New", "Riquadro 193 56 807 670 0",
                         "Riquadro 196 59 500 363 0",
                         "Posizione 323.75 183.884615385",  // 25.25 and 50.5 from the middle
                         "Scrivi A", "Riquadro 500 59 804 363 0", "Posizione 627.75 183.884615385",
                         "Scrivi B", "Riquadro 196 363 500 667 0", "Riquadro 500 363 804 667 0",
                         "RiquadroPieno 515.2 378.2 788.8 651.8 65280",
                         "CorpoCarattere 40.5333333333", "Posizione 212.2 74.2", "Scrivi 1"}));
  const Calls text(std::find(calls.begin(), calls.end(), "CorpoCarattere 8.25"), calls.end());
  EXPECT_EQ(text, (Calls{"CorpoCarattere 8.25",
                         "Posizione 83 677",
                         "Grassetto si",
                         "Posizione 83 677",
                         "Scrivi ORIZZONTALI:",
                         "Posizione 0 685.25",
                         "Grassetto no",
                         "Posizione 83 685.25",
                         "Grassetto si",
                         "Scrivi 1",
                         "Grassetto no",
                         "Scrivi  Le prime due ",
                         "Posizione 0 693.5",
                         "Posizione 0 701.75",
                         "Grassetto si",
                         "Posizione 83 701.75",
                         "Scrivi VERTICALI:",
                         "Posizione 0 710",
                         "Grassetto no",
                         "Posizione 83 710",
                         "Grassetto si",
                         "Scrivi 1",
                         "Grassetto no",
                         "Scrivi  ______________________________ ",
                         "Posizione 0 718.25",
                         "Posizione 0 726.5",
                         "Posizione 83 726.5",
                         "Scrivi 05-03-2024   -   " + NomeCruciverba.string(),
                         "Posizione 0 734.75",
                         "Posizione 83 734.75",
                         "Scrivi Autore     : Anna Rossi",
                         "Posizione 0 743",
                         "Posizione 83 743",
                         "Scrivi Creazione e stampa con Telarium - www.telarium.example",
                         "Posizione 0 751.25",
                         "FineStampa"}));
  EXPECT_EQ(platform.printer.jobs, Calls{"Il mio.v2"});
  EXPECT_FALSE(platform.printer.bold);
  EXPECT_TRUE(platform.window.calls.empty()) << "the window is not redrawn";
  EXPECT_EQ(user.pointerShapes, (std::vector<int>{PuntatoreClessidra, PuntatoreFreccia}));
}

// Cells of 110 pixels at (390, 78).
TEST_F(SheetTest, PlacesLettersAndNumbersOfThePreviewAsOnTheScreen) {
  Draw({"AB", ".#"});
  const Calls& calls = Preview();
  EXPECT_EQ(LatoCasella, 110);
  EXPECT_EQ(OrigineX, 390);
  EXPECT_EQ(OrigineY, 78);
  const Calls types = Of(calls, "CorpoCarattere");
  EXPECT_EQ(types[0], "55");
  EXPECT_EQ(types[1], "22");
  const Calls places = Of(calls, "Posizione");
  EXPECT_EQ(places[0], "431 116") << "13.75 and 27.5, each rounded, from the middle; 11 down";
  EXPECT_EQ(places[2], "397.5 83.5");
  EXPECT_EQ(Text(calls),
            "ORIZZONTALI:|1 ______________________________  ||VERTICALI:|"
            "1 ______________________________  |||05-03-2024   -   prova.tlrm|Autore     : Prova|"
            "Creazione e stampa con Telarium - www.telarium.example|");
}

TEST_F(SheetTest, LeavesOutTheSolutionsOnPaperAndInThePreview) {
  Draw({"AB#"});
  StampaSoluzioni = Vero;
  for (const Calls& calls : {Print(), Preview()}) {
    const Calls written = Of(calls, "Scrivi");
    const Calls head(written.begin(), written.begin() + 3);
    EXPECT_EQ(head, (Calls{"1", "ORIZZONTALI:", "1"}));
    EXPECT_TRUE(Of(calls, "RiquadroPieno").back().ends_with(" 0")) << "the black cell stays";
  }
}

TEST_F(SheetTest, AnEntryThatComesTooCloseToTheRightEdgeBeginsALine) {
  RecordingSurface surface;
  surface.CorpoCarattere(10);  // 5 units to a character
  struct Case {
    void (*write)(Superficie&, std::string_view, int);
    double x;  // where the entry of 20 characters begins
    bool fits;
  };
  // Lines end at 1000 - 200, and at 1000 - 83.
  for (const Case& one :
       {Case{StampaDefinizione, 700, true}, Case{StampaDefinizione, 700.5, true},
        Case{StampaDefinizione, 700.6, false}, Case{StampaDefinizione, 900, false},
        Case{AnteprimaDefinizione, 817, true}, Case{AnteprimaDefinizione, 818, false}}) {
    surface.Posizione(one.x, 50);
    surface.calls.clear();
    one.write(surface, "12 la fine del mondo", 83);
    const Calls end{"Grassetto si", "Scrivi 12", "Grassetto no", "Scrivi  la fine del mondo"};
    Calls all = one.fits ? Calls{} : Calls{"Posizione 0 60", "Posizione 83 60"};
    all.insert(all.end(), end.begin(), end.end());
    EXPECT_EQ(surface.calls, all) << one.x;
  }
  surface.calls.clear();
  StampaDefinizione(surface, "7 " + std::string(500, 'x'), 83);
  EXPECT_EQ(Of(surface.calls, "Scrivi").back(), ' ' + std::string(500, 'x')) << "never broken";
  AnteprimaDefinizione(surface, "senzaspazi", 83);
}

TEST_F(SheetTest, GoesOnOverFurtherPagesAndLosesNothing) {
  DrawEmpty(MaxColonne, MaxRighe);
  const std::string words(150, 'x');
  for (int c = 1; c <= MaxColonne; ++c)
    Definizione(c, 1, Verticale) = Unisci("colonna ", c, ' ', words);
  for (int r = 1; r <= MaxRighe; ++r)
    Definizione(1, r, Orizzontale) = Unisci("riga ", r, ' ', words);
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
  for (int c = 1; c <= MaxColonne; ++c)
    EXPECT_EQ(written[Unisci(" colonna ", c, ' ', words, ' ')], 1) << c;
  for (int r = 1; r <= MaxRighe; ++r)
    EXPECT_EQ(written[Unisci(" riga ", r, ' ', words, ' ')], 1) << r;
  EXPECT_EQ(written["VERTICALI:"], 1);
  EXPECT_EQ(written["Creazione e stampa con Telarium - www.telarium.example"], 1);
}

TEST_F(SheetTest, ForbidsWhatNeedsTheGridUntilThePreviewIsClosed) {
  Draw({"AB"});
  CambiaModoEdit();
  for (int button = 1; button <= NumPulsanti; ++button)
    window.AbilitaPulsante(button, true);
  window.CollocaLabel1(10, 10);
  window.MostraShape1({});
  platform.window.Grassetto(true);
  SchemaModificato = Falso;
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
    window.CollocaLabel1(10, 10);
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
  const double x = BordoSinistro(3) + side / 2.0 + 2;
  const double y = BordoAlto(1) + side / 2.0 - 2;
  Print();
  EXPECT_NE(LatoCasella, side);
  PassaSullaSuperficie(x, y);
  EXPECT_EQ(MouseCol, 3);
  EXPECT_EQ(MouseRiga, 1);
  EXPECT_EQ(LatoCasella, side);
  Print();
  ImpostaPuntatoreMouse(PuntatoreCasellaNera);
  PremiSullaSuperficie(TastoMouse::Sinistro, x, y);
  EXPECT_EQ(DrawingOfSchema()[0], "AB#");
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  EntraInModifica();
  Print();
  RidisegnaSchema();
  LatoCasella = 77;  // as somebody drew it
  PassaSullaSuperficie(x, y);
  EXPECT_EQ(LatoCasella, 77);
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
        EXPECT_GE(LatoCasella, 0);
        EXPECT_EQ(Of(platform.printer.printed, "Riquadro").empty(), LatoCasella == 0) << size;
        for (const std::string& type : Of(Preview(), "CorpoCarattere"))
          EXPECT_GE(std::stod(type), 0);
        EXPECT_GE(LatoCasella, 1);
      }
    }
  }
}

}  // namespace
}  // namespace telarium
