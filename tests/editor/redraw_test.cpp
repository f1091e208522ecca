#include "editor/redraw.h"

#include <algorithm>

#include "editor/settings.h"
#include "model/crossword_file.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

class RedrawTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    AltezzaCaratteri = 50;
    AltezzaNumeri = 25;
    PercentualeRiquadro = 90;
    DistanzaDaSpigolo = 5;
    DistanzaDaCentro = 10;
    SpessoreBordo = 2;
  }

  const std::vector<std::string>& Redraw() {
    surface.calls.clear();
    RidisegnaSchema();
    return surface.calls;
  }

  std::vector<std::string> CallsOf(const std::string& name) {
    std::vector<std::string> found;
    for (const std::string& call : Redraw()) {
      if (call.starts_with(name + " ")) found.push_back(call.substr(name.size() + 1));
    }
    return found;
  }

  RecordingSurface& surface = platform.window;
  RecordingWindow window;
};

TEST_F(RedrawTest, DrawsASmallGridCallByCall) {
  // Width: (240 - 16) / 2 = 112; height: (146 - 36 - 24 - 2 - 16) / 1 = 68 = the cell side.
  // OrigineX (240 - 136) / 2 = 52; OrigineY (36 + 146 - 2 - 24 - 68) / 2 = 44.
  surface.width = 240;
  surface.height = 146;
  Draw({"A#"});
  SetColour(2, 1, 0x00FF00);
  // Letter: 34 points, 17 wide and 34 high in this surface; halves 8.5 and 17, of which 8 and 17
  // are taken; shift 6.8. Black square: inset 5 percent of 68.
  EXPECT_EQ(Redraw(), (std::vector<std::string>{
                          "Pulisci",
                          "RiquadroPieno 50 42 190 114 16777215",
                          "Riquadro 49 41 191 115 128",
                          "Riquadro 48 40 192 116 128",
                          "CorpoCarattere 34",
                          "Carattere Arial",
                          "Riquadro 52 44 120 112 0",
                          "Posizione 78 67.8",
                          "Scrivi A",
                          "Riquadro 120 44 188 112 0",
                          "RiquadroPieno 123.4 47.4 184.6 108.6 65280",
                          "CorpoCarattere 17",
                      }));
  EXPECT_EQ(window.title, "Telarium - 2x1  prova.tlrm");
  EXPECT_FALSE(ReadFile(PercorsoIstantanea()).empty()) << "colours are taken to the snapshot";
}

TEST_F(RedrawTest, WritesNumbersAfterAllCells) {
  surface.width = 240;
  surface.height = 216;
  Draw({"AB", "C#"});  // side 69: cells at (51, 44) and (120, 44), (51, 113)
  EXPECT_EQ(LatoCasella, 0);
  const std::vector<std::string>& calls = Redraw();
  EXPECT_EQ(LatoCasella, 69);
  const std::vector<std::string> tail(calls.end() - 3, calls.end());
  EXPECT_EQ(tail, (std::vector<std::string>{"CorpoCarattere 17.25", "Posizione 56.45 47.45",
                                            "Scrivi 1"}));
}

TEST_F(RedrawTest, FitsAndCentresTheGridInTheBandBetweenTheBars) {
  struct Case {
    double width, height;
    int columns, rows, side, x, y;
  };
  // Halves go to the even neighbour: (1000 - 16) / 15 = 65.6; (700 - 78) / 13 = 47.8.
  for (const Case& one : {Case{1000, 700, 15, 13, 48, 140, 43}, Case{400, 900, 15, 13, 26, 5, 286},
                          Case{66, 700, 20, 2, 2, 13, 353}, Case{86, 700, 20, 2, 4, 3, 351},
                          Case{1904, 1000, 53, 30, 31, 130, 40}}) {
    surface.width = one.width;
    surface.height = one.height;
    Draw(std::vector<std::string>(static_cast<std::size_t>(one.rows),
                                  std::string(static_cast<std::size_t>(one.columns), '.')));
    Redraw();
    EXPECT_EQ(LatoCasella, one.side) << one.width << 'x' << one.height;
    EXPECT_EQ(OrigineX, one.x) << one.width << 'x' << one.height;
    EXPECT_EQ(OrigineY, one.y) << one.width << 'x' << one.height;
  }
}

TEST_F(RedrawTest, TakesTheInsetOfBlackSquaresFromThePercentage) {
  surface.width = 116;  // side 100
  surface.height = 1000;
  Draw({"#"});
  struct Case {
    int percent;
    const char* square;
  };
  for (const Case& one :
       {Case{100, "9 456 107 554 0"}, Case{99, "9 456 107 554 0"},
        Case{97, "9.5 456.5 106.5 553.5 0"}, Case{95, "10.5 457.5 105.5 552.5 0"},
        Case{50, "33 480 83 530 0"}, Case{-5, "58 505 58 505 0"}, Case{30000, "9 456 107 554 0"}}) {
    PercentualeRiquadro = static_cast<std::int16_t>(one.percent);
    EXPECT_EQ(CallsOf("RiquadroPieno").back(), one.square) << one.percent;
  }
}

TEST_F(RedrawTest, LettersHaveSixPointsAtLeastAndNumbersTheirOwn) {
  Draw({"A"});
  surface.height = 1000;
  struct Case {
    int side, percent;
    const char* types;
  };
  for (const Case& one : {Case{13, 50, "6.5 3.25"}, Case{12, 50, "6 3"}, Case{11, 50, "6 2.75"},
                          Case{3, 90, "6 0.75"}, Case{8, 75, "6 2"}, Case{9, 75, "6.75 2.25"}}) {
    surface.width = one.side + 16;
    AltezzaCaratteri = static_cast<std::int16_t>(one.percent);
    const auto types = CallsOf("CorpoCarattere");
    EXPECT_EQ(types.front() + ' ' + types.back(), one.types) << one.side;
  }
}

TEST_F(RedrawTest, DrawsWithoutABorderAboveTheMiddleAndWhateverStandsInACell) {
  surface.width = 216;  // sides 100 at (8, 455)
  surface.height = 1000;
  Draw({"?a"});
  SpessoreBordo = 0;
  DistanzaDaCentro = -10;
  SetName(InFolder("mio.tlrm"));
  EXPECT_EQ(CallsOf("Riquadro"), (std::vector<std::string>{"8 455 108 555 0", "108 455 208 555 0"}))
      << "no line of a border";
  EXPECT_EQ(CallsOf("Scrivi"), (std::vector<std::string>{"?", "a", "1"}));
  EXPECT_EQ(CallsOf("Posizione").front(), "46 470") << "12 and 25 from the middle, and 10 up";
  EXPECT_EQ(window.title, "Telarium - 2x1  " + InFolder("mio.tlrm").string());
}

TEST_F(RedrawTest, HidesLettersOnlyWhenToldTo) {
  Draw({"AB#C", "...."});
  NascondiSoluzioni = Vero;
  EXPECT_EQ(CallsOf("Scrivi"), (std::vector<std::string>{"1", "2", "3", "4"}));
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale), "AB") << "the tables are complete all the same";
  NascondiSoluzioni = Falso;
  EXPECT_EQ(CallsOf("Scrivi"), (std::vector<std::string>{"A", "B", "C", "1", "2", "3", "4"}));
}

TEST_F(RedrawTest, StaysSafeWithAnySettingsAndAnyWindow) {
  Draw({"AB#", "..C"});
  for (const std::int16_t value : {-32768, -5, 0, 1, 32767}) {
    AltezzaCaratteri = AltezzaNumeri = PercentualeRiquadro = value;
    DistanzaDaSpigolo = DistanzaDaCentro = SpessoreBordo = value;
    for (const double size : {0.0, 1.0, 20.0, 500.0, 30000.0}) {
      surface.width = surface.height = size;
      for (const std::string& type : CallsOf("CorpoCarattere")) {
        EXPECT_GE(std::stod(type), 0) << value << " in " << size;
        EXPECT_LE(std::stod(type), std::max<double>(LatoCasella, 6)) << value << " in " << size;
      }
      EXPECT_GE(LatoCasella, 0);
      if (size <= 1) {
        EXPECT_EQ(LatoCasella, 0) << "no cell fits";
      }
    }
  }
}

TEST_F(RedrawTest, DoesNothingWithoutAWindowOrACrossword) {
  platform.hasWindow = false;
  Draw({"AB"});
  EXPECT_TRUE(Redraw().empty());
  platform.hasWindow = true;
  NoGrid();
  SetGeometry(7);
  EXPECT_TRUE(Redraw().empty());
  EXPECT_EQ(LatoCasella, 7);
}

}  // namespace
}  // namespace telarium
