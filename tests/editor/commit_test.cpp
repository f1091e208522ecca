#include "editor/commit.h"

#include "editor/redraw.h"
#include "model/crossword_file.h"
#include "model/crossword_writer.h"
#include "support/drawn_crossword.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Commit = TelariumTest;
using Texts = std::vector<std::string>;

TEST_F(Commit, BringsMarksAndDerivedTablesIntoLine) {
  Draw({"AB#", "CDE"});
  SetCell(3, 1, '.');
  SetCell(2, 2, '*');
  ConsolidaSchema();
  EXPECT_EQ(Schema(5) + Schema(6), "A.B...C.**E.");
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale), "AB.");
  EXPECT_EQ(NumeroCasella(3, 1), 2);
  EXPECT_EQ(TipoCasella(1, 2), 1);
}

TEST_F(Commit, ClueOutlivesTheLossOfItsStart) {
  Draw({"AB"});
  SetClue(1, 1, Orizzontale, "Nota");
  // The file follows the grid as it stands.
  const std::pair<char, bool> steps[] = {{'*', false}, {'*', false}, {'.', true}};
  for (const auto& [second, inFile] : steps) {
    SetCell(2, 1, second);
    ConsolidaSchema();
    EXPECT_EQ(Definizione(1, 1, Orizzontale), "Nota");
    const std::string file = ReadFile(InFolder("_tlma_32.tmp"));
    EXPECT_EQ(file.find("  1  11-Nota\r\n") != std::string::npos, inFile) << second;
  }
}

TEST_F(Commit, SnapshotThatCannotBeWrittenIsToldAndTheChangeStays) {
  Draw({"AB"});
  CartellaIstantanea = InFolder("manca");
  SetCell(1, 1, 'X');
  ConsolidaSchema();
  EXPECT_EQ(user.TakeTexts(),
            Texts{WithCause("Errore di scrittura del file!", InFolder("manca/_tlma_32.tmp"),
                            "il file o la cartella non esiste")});
  EXPECT_EQ(Schema(5) + ParolaCasella(1, 1, Orizzontale), "X.B.XB");
}

TEST_F(Commit, ChangeThatMissedTheSnapshotIsNotUndoneByALaterActivation) {
  Draw({"AB"});
  SetName("mio.tlrm");
  ASSERT_TRUE(ConsolidaSchema());
  const std::string older = ReadFile(PercorsoIstantanea());
  CartellaIstantanea = InFolder("manca");
  SetCell(1, 1, 'X');
  ConsolidaSchema();
  user.TakeTexts();
  RiprendiSchema();  // nothing new is told
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale), "XB");
  CartellaIstantanea.clear();  // there is room again
  RiprendiSchema();
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale), "XB");
  EXPECT_NE(ReadFile(PercorsoIstantanea()), older);
}

TEST_F(Commit, TakingOverNeedsACrosswordAndClearsNothing) {
  Draw({"CDE"});
  SetClue(2, 2, Verticale, "fuori");
  SnapshotFromOutside(ContenutoDelFile(DrawnCrossword({"AB"})).value());
  SetName("");
  RiprendiSchema();
  EXPECT_EQ(Drawing(), Texts{"CDE"});
  SetName(NomeMaiSalvato);
  RiprendiSchema();
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale) + Definizione(2, 2, Verticale), "ABfuori");

  std::filesystem::remove(PercorsoIstantanea());
  RiprendiSchema();
  EXPECT_EQ(ReadFile(PercorsoIstantanea()), TestoDelCruciverba().value()) << "written again";
}

TEST_F(Commit, RedrawWithoutColumnsDoesNothing) {
  Draw({"AB"});
  NoGrid();
  SetGeometry(30);
  RidisegnaSchema();
  EXPECT_EQ(LatoCasella, 30);
}

}  // namespace
}  // namespace telarium
