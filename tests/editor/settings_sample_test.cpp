#include "editor/settings_sample.h"

#include <gtest/gtest.h>

namespace telarium {
namespace {

// Cells of 900 twips, 60 pixels.
TEST(SettingsSample, BlackSquaresStayInTheMiddleOfTheirCells) {
  const RettangoloInTwip cell = CellaDelCampione(3, 2, 900);
  EXPECT_EQ(cell, (RettangoloInTwip{2700, 1800, 900, 900}));
  EXPECT_EQ(QuadratoNelCampione(cell, 50), (RettangoloInTwip{2925, 2025, 450, 450}));
  EXPECT_EQ(QuadratoNelCampione(cell, 100), cell) << "no margin is left here";
}

TEST(SettingsSample, LettersAndNumbersFollowTheSideOfTheirCells) {
  const RettangoloInTwip cell = CellaDelCampione(1, 0, 900);
  EXPECT_EQ(CorpoNelCampione(cell, 5), 3.0);
  EXPECT_EQ(CorpoNelCampione(cell, 90), 54.0);
  EXPECT_EQ(PostoDelNumero(cell, 0), (PuntoInTwip{900, 0}));
  EXPECT_EQ(PostoDelNumero(cell, 15), (PuntoInTwip{1035, 135}));
  EXPECT_EQ(PostoDellaLettera(cell, 0, 300, 500), (PuntoInTwip{1200, 200}));
  EXPECT_EQ(PostoDellaLettera(cell, 20, 300, 500), (PuntoInTwip{1200, 380}));
  EXPECT_EQ(PostoDellaLettera(cell, -10, 300, 500), (PuntoInTwip{1200, 110})) << "upward";
}

}  // namespace
}  // namespace telarium
