#include "model/words.h"

#include "support/telarium_test.h"

namespace telarium {
namespace {

using Rows = std::vector<std::string>;
using Words = TelariumTest;

// The kinds, one digit per cell; then the words with their numbers, in the order of PerOgniParola.
std::pair<Rows, Rows> KindsAndWords() {
  Rows kinds, words;
  for (int r = 1; r <= NumRighe; ++r) {
    kinds.emplace_back();
    for (int c = 1; c <= NumColonne; ++c)
      kinds.back() += static_cast<char>('0' + TipoCasella(c, r));
  }
  PerOgniParola([&](const Slot& slot) {
    const auto [c, r] = slot.inizio;
    words.push_back(Unisci(NumeroCasella(c, r), ' ', ParolaCasella(c, r, slot.direzione)));
  });
  return {kinds, words};
}

TEST_F(Words, KindsNumbersAndWordsFollowFromTheDrawing) {
  const struct {
    Rows drawing, kinds, words;
  } cases[] = {
      {{"AB", "CD"}, {"53", "21"}, {"1 AB", "1 AC", "2 BD", "3 CD"}},
      {{"CA.E", "#B#.", "..#T"}, {"2313", "0101", "2101"}, {"1 CA.E", "2 AB.", "3 E.T", "4 .."}},
      {{"AB#C"}, {"2101"}, {"1 AB"}},
      {{"A", "B", "#", "C"}, {"3", "1", "0", "1"}, {"1 AB"}},
      {{"###", "#A#", "###"}, {"000", "010", "000"}, {}},
      {{"##", "##"}, {"00", "00"}, {}},
      {{"1 ?"}, {"211"}, {"1 1 ?"}},
  };
  for (const auto& row : cases) {
    Draw(Rows(MaxRighe, std::string(MaxColonne, 'X')));  // of which nothing is left
    Draw(row.drawing);
    EXPECT_EQ(KindsAndWords(), std::pair(row.kinds, row.words)) << row.drawing.front();
    for (int c = 1; c <= NumColonne; ++c) {
      for (int r = 1; r <= NumRighe; ++r) {
        EXPECT_EQ(NumeroCasella(c, r) > 0, TipoCasella(c, r) > 1) << c << ' ' << r;
        const std::string both = ParolaCasella(c, r, Orizzontale) + ParolaCasella(c, r, Verticale);
        EXPECT_TRUE(both.empty() || LetteraCasella(c, r) != CellaNera) << c << ' ' << r;
        EXPECT_EQ(both.find('X'), both.npos) << "an isolated cell begins nothing";
      }
    }
  }
}

TEST_F(Words, EachCellHoldsTheRestOfItsRun) {
  Draw({"ABC", "#D#"});
  EXPECT_EQ(ParolaCasella(2, 1, Orizzontale) + '/' + ParolaCasella(2, 1, Verticale), "BC/BD");
  EXPECT_EQ(ParolaCasella(3, 1, Orizzontale) + ParolaCasella(1, 1, Verticale), "");
}

TEST_F(Words, LinesOfAnyLengthFillTheGridAsFarAsTheyGo) {
  Draw({"AB", "CD"});
  SetLine(1, "X");
  SetLine(2, "Y.Z.*.");
  EXPECT_EQ(ParolaCasella(1, 1, Verticale) + ParolaCasella(1, 2, Orizzontale), "XYYZ");
  Draw({std::string(53, 'A')});
  SetLine(1, Schema(5) + std::string(1000, '*'));
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale), std::string(53, 'A'));
}

TEST_F(Words, WritingACellMakesAShortLineLongerAndKeepsMarksInStep) {
  const std::pair<const char*, const char*> cases[] = {
      {"A.B.**D.", "A.B.C.D."}, {"A", "A...C."}, {"A.", "A...C."}, {"A.B.*", "A.B.C."}};
  Draw({"...."});
  for (const auto& [before, after] : cases) {
    SetLine(1, before);
    SetCell(3, 1, 'C');
    EXPECT_EQ(Schema(5), after);
  }
}

}  // namespace
}  // namespace telarium
