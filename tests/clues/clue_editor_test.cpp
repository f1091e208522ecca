#include "clues/clue_editor.h"

#include "dictionary/dictionary_choice.h"
#include "editor/cell_editing.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

class ClueEditorTest : public TelariumTest {};

TEST_F(ClueEditorTest, OpensAtTheLowerRightOfTheCellAndWithinTheScreen) {
  LatoCasella = 40;
  OrigineX = 100;
  OrigineY = 60;
  struct Case {
    std::int16_t column, row;
    Misura dialog;
    Punto area, expected;
  };
  const Case cases[] = {
      {2, 3, {500, 400}, {0, 0}, {180, 180}},  {2, 3, {500, 400}, {10, 50}, {190, 230}},
      {12, 3, {500, 400}, {0, 0}, {400, 180}},  // 580 + 500 > 1000: 1000 - 600
      {2, 10, {500, 400}, {0, 0}, {180, 300}},  // 460 + 400 > 800 - 20: 800 - 480 - 20
      {12, 10, {900, 700}, {0, 0}, {0, 0}},
  };
  for (const auto& [column, row, dialog, area, expected] : cases) {
    CursoreX = column;
    CursoreY = row;
    const Punto place = PostoDelDialogo(dialog, {1000, 800}, 20, area);
    EXPECT_EQ(place.x, expected.x) << column << ' ' << row;
    EXPECT_EQ(place.y, expected.y) << column << ' ' << row;
  }
}

TEST_F(ClueEditorTest, PopupHasNoSecondSeparatorWithoutPrivateDictionaries) {
  WriteFile("LessicoX.DAT", "");
  EXPECT_EQ(CaricaVociDizionari().size(), 2u);
  EXPECT_EQ(NumVociDizionari, 2);
  WriteFile("Mio.priv", "");
  EXPECT_EQ(CaricaVociDizionari().back().testo, "Mio.priv - (Diz. privato)");
  EXPECT_EQ(NumVociDizionari, 4);
}

TEST_F(ClueEditorTest, DictionaryThatIsGoneWhenItIsPickedEndsTheProgram) {
  bool searched = false;
  EXPECT_THROW(ConDizionario("Mio.priv", [&] { searched = true; }), ProgramFailed);
  EXPECT_FALSE(searched);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
}

}  // namespace
}  // namespace telarium
