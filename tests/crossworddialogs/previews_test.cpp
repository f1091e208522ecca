#include "crossworddialogs/crossword_preview.h"
#include "crossworddialogs/model_preview.h"
#include "editor/settings.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class Previews : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    AltezzaCaratteri = 50;
    PercentualeRiquadro = 90;
    DistanzaDaCentro = 10;
    surface.width = 410;
    surface.height = 310;
  }

  DatiAnteprima Preview(std::string_view bytes) {
    surface.calls.clear();
    return MostraAnteprima(WriteFile("p.tlrm", bytes), surface);
  }

  void ExpectRefused(std::string_view bytes, const char* told) {
    const DatiAnteprima data = Preview(bytes);
    EXPECT_EQ(user.TakeTexts(), Texts{told});
    EXPECT_EQ(surface.calls, Texts{"Pulisci"});
    EXPECT_EQ(data.autoreDataTipo + data.dimensioni, "");
  }

  RecordingSurface surface;
};

// Line 4 and the grid follow.
std::string Head(std::string_view size) {
  return Unisci("Autore     : Ada\r\nData       : 05-03-2024\r\nTipo       : Crociate Normale\r\n",
                "Dimensioni : ", size, "\r\n");
}

TEST_F(Previews, ACrosswordIsDrawnFromItsFileAlone) {
  Draw({"XY"});
  ColoreCasella(1, 1) = 255;
  // "A" and "." with the code raised by 26 are "[" and "H", a black cell "D".
  const DatiAnteprima data = Preview(Head("02x02") + "D*[.\r\nH.[.XXXX\r\n  1  11-Casa\r\n");
  EXPECT_EQ(data.autoreDataTipo, " Ada - 05-03-2024 - Crociate Normale");
  EXPECT_EQ(data.dimensioni, "02x02");
  EXPECT_EQ(surface.calls,
            (Texts{"Pulisci", "Carattere Arial", "CorpoCarattere 75", "Riquadro 55 5 205 155 0",
                   "RiquadroPieno 62.5 12.5 197.5 147.5 255", "Riquadro 205 5 355 155 0",
                   // 37.5 wide and 75 high, halves to the even integer: 280 - 19, 80 - 38 + 15
                   "Posizione 261 57", "Scrivi A", "Riquadro 55 155 205 305 0",
                   "Riquadro 205 155 355 305 0", "Posizione 261 207", "Scrivi A"}));
  EXPECT_EQ(DrawingOfSchema(), Texts{"XY"});
  EXPECT_EQ(NumColonne, 2);
}

TEST_F(Previews, TheTypeIsNeverSmallerThanFivePoints) {
  std::string grid;
  for (int r = 1; r <= 30; ++r)
    grid += std::string(106, 'H') + "\r\n";
  Preview(Head("53x30") + grid);
  EXPECT_EQ(surface.calls[2], "CorpoCarattere 5");
  EXPECT_EQ(std::ssize(surface.calls), 3 + 53 * 30);
}

TEST_F(Previews, AFileThatIsNoCrosswordIsToldAndLeavesTheSurfaceEmpty) {
  const char* format = "Formato del file non valido!";
  for (const char* size : {"00x05", "05x00", "54x03", "03x31", "99999999999x3", "", "ab"})
    ExpectRefused(Head(size) + "H.H.H.\r\n", format);
  ExpectRefused("", format);
  ExpectRefused("Autore\r\n", format);
  for (const char* row : {"H.{.", "H.\x1b.", "H.\x01.", "H. ."})
    ExpectRefused(Head("02x01") + row, "Tipo di file non valido!");
  ExpectRefused(Head("02x02") + "H.H.\r\n", "Errore di lettura del file!");
  for (const Percorso& none : {InFolder("manca.tlrm"), InFolder("")}) {
    MostraAnteprima(none, surface);
    EXPECT_EQ(user.TakeTexts(), Texts{"Nessun file di cruciverba trovato!"});
  }
}

TEST_F(Previews, ModelsAreDrawnOneToASurface) {
  RecordingSurface second;
  std::vector<Superficie*> surfaces = {&surface, &second};
  surface.width = surface.height = 240;
  second.width = second.height = 100;
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  const Percorso file = WriteFile("m.dfc", "*A\r\n..\r\n-\r\n-\r\nthird is not shown\r\n-\r\n");
  EXPECT_EQ(MostraModelli(file, surfaces), (Texts{"Telar 2x2", ""}));
  // A letter begins in the middle of its cell, moved down.
  EXPECT_EQ(surface.calls,
            (Texts{"Pulisci", "Carattere Arial", "CorpoCarattere 37.5", "Riquadro 20 20 120 120 0",
                   "RiquadroPieno 25 25 115 115 0", "Riquadro 120 20 220 120 0", "Posizione 170 80",
                   "Scrivi A", "Riquadro 20 120 120 220 0", "Riquadro 120 120 220 220 0"}));
  EXPECT_EQ(second.calls, Texts{"Pulisci"});
  EXPECT_EQ(PuntatoreMouse, 0);

  std::string tall;
  for (int r = 1; r <= 21; ++r)
    tall += "..\r\n";
  surface.calls.clear();
  EXPECT_EQ(MostraModelli(WriteFile("m.dfc", tall + "-\r\n" + std::string(1 << 20, '.') + "\r\n-"),
                          surfaces),
            (Texts{"Telar 2x21", "Telar 1048576x1"}));
  EXPECT_EQ(surface.calls.size(), 3u + 40);
  EXPECT_EQ(second.calls.size(), 2u) << "its cells would have no size";
}

TEST_F(Previews, AModelFileThatCannotBeShownIsTold) {
  std::vector<Superficie*> surfaces = {&surface};
  EXPECT_TRUE(MostraModelli(InFolder("manca.dfc"), surfaces).empty());
  EXPECT_EQ(user.TakeTexts(), Texts{"Errore: Non trovato file di definizione modelli standard!"});
  for (const char* model : {"...\r\n..\r\n-", "..\r\n.x\r\n-", "MZ\x90\r\n-"}) {
    EXPECT_THROW(MostraModelli(WriteFile("m.dfc", model), surfaces), ProgramEnded);
    EXPECT_EQ(user.TakeTexts(), Texts{"Tipo di file modelli non valido!"});
  }
  EXPECT_TRUE(MostraModelli(WriteFile("m.dfc", "..\r\n.."), surfaces).empty()) << "no terminator";
}

}  // namespace
}  // namespace telarium
