#include "editor/word_pointing.h"

#include "editor/redraw.h"
#include "editor/settings.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

constexpr auto H = Orizzontale;
constexpr auto V = Verticale;
constexpr auto Unchanged = Indicazione::Invariata;
constexpr auto Neutral = Indicazione::Neutra;
constexpr auto Word = Indicazione::Parola;

struct PointingCase {
  Casella cell;  // under the pointer
  bool upperRight;
  std::vector<std::string> drawing;
  Indicazione::Specie outcome;
  Casella settled;
  int direction = 0;  // of the word
};

// The largest grid, whose last word has two letters.
std::vector<std::string> TheLargest() {
  std::vector<std::string> rows(MaxRighe, std::string(MaxColonne, '.'));
  rows.back()[MaxColonne - 3] = '#';
  return rows;
}

class WordPointing : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    ModoGriglia = ModoModifica;
  }

  // A crossword on a surface of 1000 x 700 pixels, cells of 100.
  void Show(const std::vector<std::string>& rows) {
    Draw(rows);
    window.toolbarHeight = window.statusBarHeight = 0;
    RidisegnaSchema();
    SetGeometry(100, 50, 60);
  }

  void ExpectOutOfView(int pointer) {
    EXPECT_EQ(PuntatoreMouse, pointer);
    EXPECT_FALSE(window.tipShows);
  }

  RecordingWindow window;
};

TEST_F(WordPointing, ACellMeansItsWordOrTheOneThatStartsOneCellBack) {
  const PointingCase cases[] = {
      {{3, 3}, true, {"....", "....", "..#.", "...."}, Neutral, {3, 3}},
      {{3, 3}, false, {"....", "....", ".#..", "...."}, Word, {3, 3}, H},
      {{3, 3}, true, {"....", "..#.", "....", "...."}, Word, {3, 3}, V},
      {{3, 3}, true, {"....", "..#.", ".#..", "...."}, Word, {3, 3}, H},
      {{3, 3}, false, {"....", "..#.", ".#..", "...."}, Word, {3, 3}, V},

      {{3, 3}, true, {"....", "....", "#...", "...."}, Word, {2, 3}, H},
      {{3, 3}, true, {"....", ".#..", "#...", "...."}, Word, {2, 3}, H},
      {{3, 3}, true, {"....", ".#..", "....", "...."}, Unchanged, {2, 3}},
      {{3, 3}, true, {"....", "....", "....", "...."}, Unchanged, {2, 3}},
      {{3, 3}, true, {"....", "....", ".#.#", "...."}, Neutral, {2, 3}},
      {{3, 3}, false, {"..#.", "....", "....", "...."}, Word, {3, 2}, V},
      {{3, 3}, false, {"..#.", ".#..", "....", "...."}, Word, {3, 2}, V},
      {{3, 3}, false, {"....", ".#..", "....", "...."}, Unchanged, {3, 2}},
      {{3, 3}, false, {"....", "....", "....", "...."}, Unchanged, {3, 2}},
      {{3, 3}, false, {"....", "..#.", "....", "..#."}, Neutral, {3, 2}},

      {{2, 3}, true, {"....", "....", "....", "...."}, Word, {1, 3}, H},
      {{2, 3}, true, {"....", "....", "#.#.", "...."}, Neutral, {1, 3}},
      {{3, 2}, false, {".#..", "....", "....", "...."}, Word, {3, 1}, V},

      // Row 1 looks up, column 1 looks left, and stays where it is.
      {{3, 1}, true, {"....", "..#.", "....", "...."}, Neutral, {3, 1}},
      {{3, 1}, true, {"...."}, Neutral, {3, 1}},
      {{1, 3}, false, {"....", "....", ".#..", "...."}, Neutral, {1, 3}},
      {{1, 3}, false, {".", ".", ".", "."}, Neutral, {1, 3}},
      {{1, 1}, false, {".#..", "#...", "....", "...."}, Neutral, {1, 1}},
      {{1, 1}, true, {".#..", "#...", "....", "...."}, Neutral, {1, 1}},
      {{53, 30}, true, TheLargest(), Word, {52, 30}, H},
  };
  for (const PointingCase& one : cases) {
    SCOPED_TRACE(&one - cases);
    Draw(one.drawing);
    const Indicazione given = IndicazioneDa(one.cell, one.upperRight);
    EXPECT_EQ(given.specie, one.outcome);
    EXPECT_EQ(given.casella.colonna, one.settled.colonna);
    EXPECT_EQ(given.casella.riga, one.settled.riga);
    EXPECT_EQ(one.outcome == Word ? given.direzione : 0, one.direction);
  }
}

TEST_F(WordPointing, AWordShowsItsTipAndItsRectangle) {
  Show({"CASA", "A#..", "NO.."});
  SetClue(1, 1, H, "Si abita");
  SetClue(1, 1, V, "Abbaia");
  PassaSullaSuperficie(80, 90);  // on the diagonal
  EXPECT_EQ(PuntatoreMouse, 9);
  EXPECT_EQ(window.tip, "  1 oriz. -Si abita ");
  EXPECT_EQ(window.tipLeft, 61);
  EXPECT_EQ(window.tipTop, 102);
  ASSERT_TRUE(window.rectangle);
  EXPECT_EQ(window.rectangle->sinistra, 51);
  EXPECT_EQ(window.rectangle->cima, 61);
  EXPECT_EQ(window.rectangle->larghezza, 398);
  EXPECT_EQ(window.rectangle->altezza, 98);
  EXPECT_EQ(window.rectangle->colore, 65535);

  PassaSullaSuperficie(80, 91);
  EXPECT_EQ(PuntatoreMouse, 7);
  EXPECT_EQ(window.tip, "  1 vert. -Abbaia ");
  EXPECT_EQ(window.rectangle->larghezza, 98);
  EXPECT_EQ(window.rectangle->altezza, 298);
  EXPECT_EQ(window.rectangle->colore, 12632064);

  RettangoloParola = Falso;
  SetClue(1, 1, H, std::string(79, 'x'));  // with the number a tip of 910 pixels
  PassaSullaSuperficie(90, 61);
  EXPECT_EQ(window.tipLeft, 71) << "just fits";
  PassaSullaSuperficie(91, 61);
  EXPECT_EQ(window.tipLeft, 89);
  EXPECT_EQ(window.rectangle->altezza, 298) << "left alone";
}

TEST_F(WordPointing, OnALongWordTheCellFollowsOneBehindAndTheShapeStays) {
  Show({"CASA", "####", "#..#"});
  PassaSullaSuperficie(60, 70);
  PassaSullaSuperficie(160, 65);
  EXPECT_EQ(PuntatoreMouse, 0) << "row 1 looks up, and the cell below is black";
  PassaSullaSuperficie(60, 70);
  EXPECT_EQ(PuntatoreMouse, 9);
  Show({"....", "CASA", "...#"});
  for (const auto& [x, column] : {std::pair(149, 1), {249, 1}, {349, 2}, {449, 3}}) {
    PassaSullaSuperficie(x, 161);
    EXPECT_EQ(PuntatoreMouse, 9);
    EXPECT_EQ(MouseCol, column);
    EXPECT_EQ(MouseRiga, 2);
  }
  EXPECT_EQ(ParolaCasella(MouseCol, MouseRiga, H), "SA");
  PassaSullaSuperficie(360, 270);  // a black cell
  ExpectOutOfView(0);
  EXPECT_FALSE(window.rectangle);
}

TEST_F(WordPointing, BesideTheGridNothingIsMeant) {
  Show({"CASA", "A..."});
  for (const auto& [x, y] : {std::pair(49.0, 90.0), {80.0, 59.0}, {451.0, 90.0}, {80.0, 261.0}}) {
    PassaSullaSuperficie(60, 70);
    EXPECT_TRUE(window.tipShows);
    PassaSullaSuperficie(x, y);
    ExpectOutOfView(0);
    EXPECT_TRUE(window.rectangle) << "stays as it is";
  }
  PassaSullaSuperficie(60, 70);
  PassaSuToolbar1();
  ExpectOutOfView(0);
  PassaSullaSuperficie(60, 70);
  ModoGriglia = ModoNeutro;
  PassaSullaSuperficie(60, 70);
  ExpectOutOfView(9);
  ModoGriglia = ModoModifica;
  SetGeometry(0, 50, 60);
  PassaSullaSuperficie(60, 70);
  ExpectOutOfView(9);
  NoGrid();
  SetGeometry(100, 50, 60);
  PassaSullaSuperficie(60, 70);
  ExpectOutOfView(0);
}

TEST_F(WordPointing, ToolsTellTheirNameInEveryModeAndTheLogoLeavesNoPointer) {
  ModoGriglia = 8;
  PrendiStrumento(Strumento::CasellaBianca);
  PassaSullaSuperficie(300, 400);
  EXPECT_EQ(window.tip, " Casella bianca ");
  EXPECT_EQ(window.tipLeft, 300);
  EXPECT_EQ(window.tipTop, 412);
  PassaSuToolbar1();
  ExpectOutOfView(2);
  PrendiStrumento(Strumento::CasellaNera);
  PassaSullaSuperficie(1, 1);
  EXPECT_EQ(window.tip, " Casella nera ");
  ImpostaPuntatoreMouse(99);
  PassaSuToolbar1();
  EXPECT_EQ(PuntatoreMouse, 99);
  PassaSullaSuperficie(1, 1);
  ExpectOutOfView(0);
}

}  // namespace
}  // namespace telarium
