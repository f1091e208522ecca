#include "laboratory/measures.h"

#include <gtest/gtest.h>

#include "support/drawn_crossword.h"

namespace telarium {
namespace {

Derivati Grid(const std::vector<std::string>& rows) {
  return Deriva(DrawnCrossword(rows));
}

TEST(Measures, PiazzaIsTheLargestRectangleNextToASquare) {
  const struct {
    std::vector<std::string> rows;
    Rettangolo piazza;
  } cases[] = {
      {{"#"}, {0, 0}},
      {{"....", "#..#", "#..."}, {2, 3}},
      // 1 by 4, 4 by 1 and 2 by 2 have the same area.
      {{"....", ".###", ".#..", ".#.."}, {2, 2}},
      // 3 by 2 and 2 by 3.
      {{"...##", "...##", "###..", "###..", "###.."}, {3, 2}},
      {{"..#..", ".....", "#.#.#"}, {5, 1}},
  };
  for (const auto& [rows, piazza] : cases)
    EXPECT_EQ(Piazza(Grid(rows)), piazza) << rows[0];
}

TEST(Measures, OfAGrid) {
  const Derivati grid = Grid({"CI\xD9#.", "A..#X", "###..", "\x8C#7Ac"});
  EXPECT_EQ(PercentualeNere(grid), 30);
  EXPECT_EQ(LettereUsate(grid), 5);  // the ligature would be two
  const auto areas = Aree(grid);
  ASSERT_EQ(areas.size(), 3u);
  EXPECT_EQ(areas[0].size(), 6u);
  EXPECT_EQ(areas[1],
            (std::vector<Casella>{{5, 1}, {5, 2}, {4, 3}, {5, 3}, {3, 4}, {4, 4}, {5, 4}}));
  EXPECT_EQ(areas[2], (std::vector<Casella>{{1, 4}}));
  EXPECT_EQ(CelleSole(grid), (std::vector<Casella>{{5, 1}, {5, 2}, {3, 4}}));
  EXPECT_EQ(VociPerLunghezza(grid)[2], 5);
  EXPECT_EQ(VociPerLunghezza(grid)[4], 1);
}

TEST(Measures, DifficultyOfAnEntry) {
  EXPECT_EQ(DifficoltaVoce(60, 4, 2, {}), 1);
  EXPECT_EQ(DifficoltaVoce(59, 4, 2, {}), 2);
  EXPECT_EQ(DifficoltaVoce(29, 4, 2, {}), 3);
  EXPECT_EQ(DifficoltaVoce(29, 5, 2, {.difficile = true}), 5);
  EXPECT_EQ(DifficoltaVoce(std::nullopt, 5, 3, {}), 1);
  EXPECT_EQ(DifficoltaVoce(29, 5, 2, {.difficile = true, .grado = 2}), 2);
}

}  // namespace
}  // namespace telarium
