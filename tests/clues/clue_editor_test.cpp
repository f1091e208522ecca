#include "clues/clue_editor.h"

#include "dictionary/dictionary_choice.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

class ClueEditorTest : public TelariumTest {};

TEST_F(ClueEditorTest, OpensAtTheLowerRightOfTheCellAndWithinTheScreen) {
  struct Case {
    Punto corner;
    Misura dialog;
    Punto expected;
  };
  const Case cases[] = {
      {{180, 180}, {500, 400}, {180, 180}}, {{190, 230}, {500, 400}, {190, 230}},
      {{580, 180}, {500, 400}, {400, 180}},  // 580 + 500 > 1000: 1000 - 600
      {{180, 460}, {500, 400}, {180, 300}},  // 460 + 400 > 800 - 20: 800 - 480 - 20
      {{580, 460}, {900, 700}, {0, 0}},
  };
  for (const auto& [corner, dialog, expected] : cases) {
    const Punto place = PostoDelDialogo(dialog, {1000, 800}, 20, corner);
    EXPECT_EQ(place.x, expected.x) << corner.x << ' ' << corner.y;
    EXPECT_EQ(place.y, expected.y) << corner.x << ' ' << corner.y;
  }
}

TEST_F(ClueEditorTest, PopupHasNoSecondSeparatorWithoutPrivateDictionaries) {
  WriteFile("LessicoX.DAT", "");
  EXPECT_EQ(CaricaVociDizionari(CartellaProgramma).size(), 2u);
  WriteFile("Mio.priv", "");
  const auto entries = CaricaVociDizionari(CartellaProgramma);
  EXPECT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries.back().testo, "Mio.priv - (Diz. privato)");
}

TEST_F(ClueEditorTest, DictionaryThatIsGoneWhenItIsPickedEndsTheProgram) {
  bool searched = false;
  EXPECT_THROW(ConDizionario(dictionary, "Mio.priv", [&](auto&) { searched = true; }),
               ProgramFailed);
  EXPECT_FALSE(searched);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
}

}  // namespace
}  // namespace telarium
