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

  std::optional<AnteprimaCruciverba> Read(std::string_view bytes) const {
    return LeggiAnteprima(WriteFile("p.tlrm", bytes));
  }

  void ExpectRefused(std::string_view bytes, const std::string& told) {
    EXPECT_FALSE(Read(bytes));
    EXPECT_EQ(user.TakeTexts(), Texts{told});
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
  SetColour(1, 1, 255);
  // "A" and "." with the code raised by 26 are "[" and "H", a black cell "D".
  const auto preview = Read(Head("02x02") + "D*[.\r\nH.[.XXXX\r\n  1  11-Casa\r\n");
  ASSERT_TRUE(preview);
  EXPECT_EQ(preview->autoreDataTipo, " Ada - 05-03-2024 - Crociate Normale");
  EXPECT_EQ(preview->dimensioni, "02x02");
  DisegnaAnteprima(*preview, surface);
  EXPECT_EQ(surface.calls,
            (Texts{"Pulisci", "Carattere Arial", "CorpoCarattere 75", "Riquadro 55 5 205 155 0",
                   "RiquadroPieno 62.5 12.5 197.5 147.5 255", "Riquadro 205 5 355 155 0",
                   // 37.5 wide and 75 high, halves to the even integer: 280 - 19, 80 - 38 + 15
                   "Posizione 261 57", "Scrivi A", "Riquadro 55 155 205 305 0",
                   "Riquadro 205 155 355 305 0", "Posizione 261 207", "Scrivi A"}));
  EXPECT_EQ(DrawingOfSchema(), Texts{"XY"});
  EXPECT_EQ(NumColonne, 2);
}

TEST_F(Previews, TheLargestGridFitsAndItsTypeStaysReadable) {
  std::string grid;
  for (int r = 1; r <= 30; ++r)
    grid += std::string(106, 'H') + "\r\n";
  const auto preview = Read(Head("53x30") + grid);
  ASSERT_TRUE(preview);
  surface.width = 260;  // where half a pixel more for each cell would be too much
  DisegnaAnteprima(*preview, surface);
  EXPECT_EQ(surface.calls[2], "CorpoCarattere 5");
  EXPECT_EQ(std::ssize(surface.calls), 3 + 53 * 30);
  EXPECT_EQ(surface.calls.back(), "Riquadro 232 211 236 215 0");
}

TEST_F(Previews, ATypeBetweenTwoPointsIsTheEvenOne) {
  const auto preview = Read(Head("02x01") + "H.H.\r\n");
  ASSERT_TRUE(preview);
  AltezzaCaratteri = 75;
  surface.width = 2 * 14 + 10;
  DisegnaAnteprima(*preview, surface);
  EXPECT_EQ(surface.calls[2], "CorpoCarattere 10") << "10.5: three quarters of 14";
}

TEST_F(Previews, TextsOfAnyLengthAreCut) {
  const std::string much(1 << 20, 'W');
  const auto preview = Read("Autore     : " + much + "\r\nd\r\n" + much + "\r\nDimensioni : 02x01" +
                            much + "\r\nH.H.\r\n");
  ASSERT_TRUE(preview);
  EXPECT_LT(preview->autoreDataTipo.size(), 500u);
  EXPECT_EQ(preview->dimensioni, "02x01WWWWWWWWWWWWWWW");
}

TEST_F(Previews, AFileThatIsNoCrosswordIsTold) {
  const char* format = "Formato del file non valido!";
  for (const char* size : {"00x05", "05x00", "54x03", "03x31", "99999999999x3", "", "ab"})
    ExpectRefused(Head(size) + "H.H.H.\r\n", format);
  ExpectRefused("", format);
  ExpectRefused("Autore\r\n", format);
  for (const char* row : {"H.{.", "H.\x1b.", "H.\x01.", "H. ."})
    ExpectRefused(Head("02x01") + row, "Tipo di file non valido!");
  ExpectRefused(Head("02x02") + "H.H.\r\n",
                WithCause("Errore di lettura del file!", InFolder("p.tlrm"),
                          "il file finisce prima dello schema"));
  const char* none = "Nessun file di cruciverba trovato!";
  EXPECT_FALSE(LeggiAnteprima(InFolder("manca.tlrm")));
  EXPECT_FALSE(LeggiAnteprima(InFolder("")));
  EXPECT_EQ(
      user.TakeTexts(),
      (Texts{WithCause(none, InFolder("manca.tlrm"), "il file o la cartella non esiste"), none}));
}

TEST_F(Previews, AModelIsDrawnWithItsLetters) {
  surface.width = surface.height = 240;
  const auto models = ModelliDaMostrare(WriteFile("m.dfc", "*A\r\n..\r\n-\r\n-\r\nno\r\n"));
  ASSERT_EQ(models.size(), 2u);
  EXPECT_EQ(NomeDelModello(models[0]), "Telar 2x2");
  EXPECT_EQ(NomeDelModello(models[1]), "");
  DisegnaModello(models[0], surface);
  // A letter begins in the middle of its cell, moved down.
  EXPECT_EQ(surface.calls,
            (Texts{"Pulisci", "Carattere Arial", "CorpoCarattere 28", "Riquadro 20 20 120 120 0",
                   "RiquadroPieno 25 25 115 115 0", "Riquadro 120 20 220 120 0", "Posizione 170 80",
                   "Scrivi A", "Riquadro 20 120 120 220 0", "Riquadro 120 120 220 220 0"}));
  surface.calls.clear();
  DisegnaModello(models[1], surface);
  EXPECT_EQ(surface.calls, Texts{"Pulisci"});
}

TEST_F(Previews, ModelsPastTheTwelfthAndRowsPastTheTwentiethDoNotShow) {
  std::string many;
  for (int n = 1; n <= 13; ++n)
    many += "..\r\n-\r\n";
  EXPECT_EQ(ModelliDaMostrare(WriteFile("m.dfc", many)).size(), 12u);
  DisegnaModello(Modello(21, ".."), surface);
  EXPECT_EQ(surface.calls.size(), 3u + 40);
  surface.calls.clear();
  DisegnaModello({std::string(1 << 20, '.')}, surface);
  EXPECT_EQ(surface.calls, Texts{"Pulisci"}) << "its cells would have no size";
}

TEST_F(Previews, AModelFileThatCannotBeShownIsTold) {
  EXPECT_TRUE(ModelliDaMostrare(InFolder("manca.dfc")).empty());
  EXPECT_EQ(user.TakeTexts(),
            Texts{WithCause("Errore: Non trovato file di definizione modelli standard!",
                            InFolder("manca.dfc"), "il file o la cartella non esiste")});
  for (const char* model : {"...\r\n..\r\n-", "..\r\n.x\r\n-", "MZ\x90\r\n-"}) {
    EXPECT_THROW(ModelliDaMostrare(WriteFile("m.dfc", model)), ProgramFailed);
    EXPECT_EQ(user.TakeTexts(), Texts{"Tipo di file modelli non valido!"});
  }
  EXPECT_TRUE(ModelliDaMostrare(WriteFile("m.dfc", "..\r\n..")).empty()) << "no terminator";
}

}  // namespace
}  // namespace telarium
