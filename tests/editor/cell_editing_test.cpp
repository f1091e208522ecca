#include "editor/cell_editing.h"

#include "editor/commit.h"
#include "editor/redraw.h"
#include "editor/resizing.h"
#include "editor/word_pointing.h"
#include "model/crossword_file.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Rows = std::vector<std::string>;

constexpr auto Left = TastoMouse::Sinistro;
constexpr auto Right = TastoMouse::Destro;

class Editing : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
  }

  void Open(const Rows& rows) {
    Draw(rows);
    ASSERT_TRUE(ScriviIstantanea());
    RiprendiSchema();
    ModoGriglia = ModoModifica;
  }

  // The pointer goes to the upper right, or lower left, half of a cell; a button is pressed there.
  void MoveTo(int column, int row, bool upperRight = true) {
    const double high = LatoCasella * 0.25;
    const double low = LatoCasella * 0.75;
    PassaSullaSuperficie(GeometriaDelloSchema().BordoSinistro(column) + (upperRight ? low : high),
                         GeometriaDelloSchema().BordoAlto(row) + (upperRight ? high : low));
  }
  void Press(TastoMouse button, int column, int row) {
    PremiSullaSuperficie(button, GeometriaDelloSchema().BordoSinistro(column) + 3,
                         GeometriaDelloSchema().BordoAlto(row) + 3);
  }
  void PressBeside(TastoMouse button = Left) { PremiSullaSuperficie(button, 1, 1); }

  RecordingWindow window;
};

TEST_F(Editing, ToolsTurnCellsBlackAndWhiteWithBothButtons) {
  Open({"CASA", "A...", "NE.."});
  SetClue(1, 1, Orizzontale, "Si abita");
  struct Case {
    void (*tool)();
    TastoMouse button;
    int column, row;
    Rows grid;
    int pointer;
    bool changes;
  };
  const Case cases[] = {
      {AttivaCasellaNera, Left, 2, 1, {"C#SA", "A...", "NE.."}, 4, true},
      {AttivaCasellaNera, Left, 2, 1, {"C#SA", "A...", "NE.."}, 4, false},
      {AttivaCasellaNera, Right, 2, 1, {"C.SA", "A...", "NE.."}, 2, true},
      {AttivaCasellaBianca, Left, 2, 1, {"C.SA", "A...", "NE.."}, 2, false},
      {AttivaCasellaBianca, Left, 1, 2, {"C.SA", "A...", "NE.."}, 2, false},
      {AttivaCasellaBianca, Right, 4, 3, {"C.SA", "A...", "NE.#"}, 4, true},
      {AttivaCasellaBianca, Left, 4, 3, {"C.SA", "A...", "NE.."}, 2, true},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(&one - cases);
    one.tool();
    window.editPressed = true;  // as behind a button of the toolbar
    MarkModified(false);
    Press(one.button, one.column, one.row);
    EXPECT_EQ(Drawing(), one.grid);
    EXPECT_EQ(DrawingOfSchema(), one.grid);
    EXPECT_EQ(PuntatoreMouse, one.pointer);
    EXPECT_EQ(SchemaModificato, one.changes ? Vero : Falso);
    EXPECT_EQ(window.editPressed, !one.changes);
  }
  EXPECT_EQ(Schema(5), "C...S.A.") << "the companion marks are in line again";
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "Si abita");
  EXPECT_EQ(ModoGriglia, 8) << "the mode of the tool that was chosen";
  PressBeside();
  EXPECT_EQ(PuntatoreMouse, 0);
  EXPECT_EQ(ModoGriglia, 1);
  EXPECT_TRUE(window.editPressed);
}

TEST_F(Editing, ACellShowsItsNewGroundBeforeTheSnapshotIsWritten) {
  Open({"....", "...."});
  ModoGriglia = ModoAnteprima;
  auto& calls = platform.window.calls;
  calls.clear();
  AttivaCasellaNera();
  EXPECT_FALSE(calls.empty()) << "a tool leaves the preview that shows";
  const double left = GeometriaDelloSchema().BordoSinistro(1) + 2, right = left + LatoCasella - 4;
  const double top = GeometriaDelloSchema().BordoAlto(1) + 2, bottom = top + LatoCasella - 4;
  calls.clear();
  Press(Left, 1, 1);
  EXPECT_TRUE(calls.front().starts_with("RiquadroPieno") && calls.front().ends_with(" 0"));
  AttivaCasellaBianca();
  calls.clear();
  Press(Left, 1, 1);
  platform.window.RiquadroPieno(left, top, right, bottom, ColoreBianco);
  EXPECT_EQ(calls.front(), calls.back());
}

TEST_F(Editing, AChangeThatCannotReachTheSnapshotStays) {
  Open({"....", "...."});
  CartellaIstantanea = InFolder("manca");
  AttivaCasellaNera();
  Press(Left, 1, 1);
  AggiungiColonna();
  EXPECT_EQ(Drawing(), (Rows{"#....", "....."}));
  EXPECT_EQ(user.TakeTexts().size(), 2u);
  CartellaIstantanea.clear();
  RiprendiSchema();
  EXPECT_EQ(Drawing(), (Rows{"#....", "....."}));
}

TEST_F(Editing, APressOutsideOfEditingOrWithoutMeaningEntersEditing) {
  Open({"CASA"});
  for (const int mode : {0, -1, 3, 20}) {
    ModoGriglia = static_cast<std::int16_t>(mode);
    Press(Left, 1, 1);
    EXPECT_EQ(ModoGriglia, 1);
    EXPECT_TRUE(window.editPressed);
  }
  window.editPressed = false;
  MoveTo(1, 1);
  Press(Right, 1, 1);
  EXPECT_TRUE(window.editPressed) << "inside of the grid";
  EXPECT_TRUE(window.edited.empty());
  PressBeside();
  EXPECT_EQ(ModoGriglia, 1);
}

TEST_F(Editing, AColourStaysAndACancelledChooserChangesNothing) {
  Open({"CA#A"});
  user.colours = {NessunColore, 0, 0x3060C0, 0};
  Press(Left, 3, 1);
  EXPECT_EQ(ColoreScelto, NessunColore);
  Press(Left, 3, 1);
  EXPECT_EQ(SchemaModificato, Falso);
  Press(Left, 3, 1);
  EXPECT_EQ(SchemaModificato, Vero);
  RiprendiSchema();
  EXPECT_EQ(ColoreCasella(3, 1), 0x3060C0);
  Press(Left, 3, 1);
  RiprendiSchema();
  EXPECT_EQ(ColoreCasella(3, 1), 0) << "plain black again, also for the read-back";
}

TEST_F(Editing, AWordGoesToTheClueEditorAndComesBackIntoTheGrid) {
  Open({"....", "CASA", "A#..", "NE.."});
  MoveTo(4, 2, false);  // where no word starts
  Press(Left, 4, 2);
  ASSERT_EQ(window.edited.size(), 1u);
  const ParolaInEsame& given = window.edited.front();
  EXPECT_EQ(std::tuple(given.testo.parola, given.numero, given.direzione),
            std::tuple(".A..", 4, Verticale));
  EXPECT_EQ(given.destra, OrigineX + 4 * LatoCasella);
  EXPECT_EQ(given.fondo, OrigineY + LatoCasella);
  EXPECT_EQ(SchemaModificato, Falso) << "nothing was changed";

  MoveTo(1, 2);
  window.whenEdited = [](const ParolaDefinita&) { return ParolaDefinita{"COTE", "Nuova"}; };
  Press(Left, 1, 2);
  EXPECT_EQ(Drawing(), (Rows{"....", "COTE", "A#..", "NE.."}));
  EXPECT_EQ(SchemaModificato, Vero);
  EXPECT_EQ(ParolaCasella(1, 2, Orizzontale), "COTE");

  using Change = std::pair<const char*, const char*>;  // the clue alone, the word alone
  for (const auto& [word, clue] : {Change{"COTE", "Altra"}, Change{"CITE", "Altra"}}) {
    MarkModified(false);
    MoveTo(1, 2);
    window.whenEdited = [word = word, clue = clue](const ParolaDefinita&) {
      return ParolaDefinita{word, clue};
    };
    Press(Left, 1, 2);
    EXPECT_EQ(SchemaModificato, Vero) << word;
    EXPECT_NE(ReadFile(PercorsoIstantanea()).find("  1  21-Altra\r\n"), std::string::npos) << word;
  }
  Draw({"....", "COTE", "A#..", "NE.."});

  MoveTo(3, 2);  // along the word: nothing changes but the cell, one behind
  window.whenEdited = [](const ParolaDefinita& given) {
    return ParolaDefinita{"RTE*XXXX", given.definizione};
  };
  Press(Left, 3, 2);
  EXPECT_EQ(Drawing(), (Rows{"....", "CRTE", "A#..", "NE.."})) << "no further than the run goes";
}

TEST_F(Editing, AClueForACellWithoutAStartIsOfferedToTheWordThatRunsThroughIt) {
  Open({"....", "CASA", "A#..", "NE.."});
  struct Case {
    ParolaDefinita accepted;  // for the rest of the word from its second cell on
    std::optional<Risposta> answer;
    std::string atStart, atCell;  // the clues afterwards
  };
  const Case cases[] = {
      {{"ASE", "Cucine"}, Risposta::Annulla, "", "Cucine"},
      {{"ASE", "Rustici"}, Risposta::Ok, "Rustici", "Cucine"},
      {{"ASI", "Eventi"}, Risposta::Ok, "Eventi", "Cucine"},
      {{"ASE", "Cucine"}, {}, "Eventi", "Cucine"},  // the word alone
      {{"ASE", ""}, {}, "Eventi", ""},              // nothing is lost
  };
  for (const auto& [accepted, answer, atStart, atCell] : cases) {
    SCOPED_TRACE(accepted.definizione);
    MoveTo(1, 2);
    MoveTo(3, 2);
    window.whenEdited = [accepted = accepted](const ParolaDefinita&) { return accepted; };
    if (answer) user.Answer(*answer);
    Press(Left, 3, 2);
    EXPECT_EQ(Drawing()[1], 'C' + accepted.parola);
    EXPECT_EQ(Definizione(1, 2, Orizzontale), atStart);
    EXPECT_EQ(Definizione(2, 2, Orizzontale), atCell);
    const bool saved =
        ReadFile(PercorsoIstantanea()).find("21-" + atStart + "\r\n") != std::string::npos;
    EXPECT_EQ(saved, !atStart.empty());
  }
  const Rows asked = user.TakeTexts();
  ASSERT_EQ(asked.size(), 3u);
  EXPECT_TRUE(asked[0].ends_with(" alla parola 5 Orizz. CASE?")) << asked[0];
  EXPECT_TRUE(
      asked[2].ends_with(" CASI? La definizione che questa ha gi\xE0 verrebbe sostituita."));
}

TEST_F(Editing, NoWordGoesToTheClueEditorWhereThereIsNone) {
  Open({"#.#.", "....", "#.#.", "...."});
  MoveTo(1, 4);
  MoveTo(2, 4, false);  // the shape stays, and the cell above has no word that way
  EXPECT_EQ(PuntatoreMouse, PuntatoreOrizzontale);
  EXPECT_EQ(MouseRiga, 3);
  Press(Left, 2, 4);
  TogliColonna();
  ModoGriglia = ModoModifica;
  ImpostaPuntatoreMouse(PuntatoreVerticale);
  MouseCol = 4;  // as it was before the column went
  MouseRiga = 1;
  Press(Left, 2, 2);
  EXPECT_TRUE(window.edited.empty());
}

TEST_F(Editing, WithoutAGridNoPressDoesAnything) {
  AttivaCasellaNera();
  Press(Left, 1, 1);
  EXPECT_EQ(PuntatoreMouse, 4) << "LatoCasella 0";
  Open({"CASA"});
  NoGrid();
  AttivaCasellaNera();
  Press(Left, 1, 1);
  EXPECT_EQ(PuntatoreMouse, 0) << "beside the grid";
  Press(Left, 1, 1);
  TogliColonna();
  TogliRiga();
  EXPECT_EQ(user.TakeTexts().size(), 2u) << "too small to lose any";
  EXPECT_EQ(NumColonne + NumRighe, 0);
  EXPECT_EQ(SchemaModificato, Falso);
}

TEST_F(Editing, TheGridGrowsAndShrinksByOne) {
  Open({"CASA", "A.#.", "NEL.", "...."});
  SetClue(1, 4, Orizzontale, "In basso");
  SetColour(3, 2, 255);
  SetColour(4, 4, 99);
  const std::tuple<void (*)(), Rows, int> cases[] = {
      {TogliRiga, {"CASA", "A.#.", "NEL."}, 6},
      {TogliColonna, {"CAS", "A.#", "NEL"}, 4},
      {AggiungiColonna, {"CAS.", "A.#.", "NEL."}, 3},
      {AggiungiRiga, {"CAS.", "A.#.", "NEL.", "...."}, 5},
  };
  for (const auto& [operation, grid, mode] : cases) {
    SCOPED_TRACE(mode);
    MarkModified(false);
    operation();
    EXPECT_EQ(Drawing(), grid);
    EXPECT_EQ(Schema(4), Unisci("Dimensioni : ", DueCifre(NumColonne), 'x', DueCifre(NumRighe)));
    EXPECT_EQ(ModoGriglia, mode);
    EXPECT_EQ(PuntatoreMouse, 0);
    EXPECT_EQ(SchemaModificato, Vero);
    EXPECT_EQ(ColoreCasella(3, 2), 255);
  }
  EXPECT_EQ(Definizione(1, 4, Orizzontale), "In basso") << "the row is back";
  EXPECT_EQ(ColoreCasella(4, 4), 99);
  EXPECT_EQ(ParolaCasella(1, 1, Orizzontale), "CAS.");
}

TEST_F(Editing, NumbersFollowTheGridAndCluesStayWithTheirCells) {
  Open({"CASA", "....", "NEL#"});
  SetClue(1, 1, Verticale, "first");
  SetClue(4, 1, Verticale, "last column");
  SetClue(1, 3, Orizzontale, "NEL");
  const auto numberAt = [](int c, int r) { return int{NumeroCasella(c, r)}; };
  const auto saved = [](const char* clue) {
    return TestoDelCruciverba().value().find(clue) != std::string::npos;
  };
  EXPECT_EQ(numberAt(1, 3), 6);
  AttivaCasellaNera();
  Press(Left, 2, 1);
  EXPECT_EQ(numberAt(3, 1), 2) << "a word begins behind the black cell";
  EXPECT_EQ(numberAt(2, 2), 5) << "and below it";
  TogliColonna();
  EXPECT_FALSE(saved("last column"));
  EXPECT_EQ(numberAt(3, 1), 2) << "one letter, and the word below it";
  EXPECT_EQ(ParolaCasella(3, 1, Orizzontale), "");
  AggiungiColonna();
  EXPECT_TRUE(saved("  4  12-last column\r\n"));
  EXPECT_EQ(ParolaCasella(3, 1, Orizzontale), "S.") << "the stretch of one letter is a word";
  EXPECT_EQ(ParolaCasella(1, 3, Orizzontale), "NEL.");
  EXPECT_EQ(Definizione(1, 1, Verticale) + Definizione(1, 3, Orizzontale), "firstNEL");
  EXPECT_EQ(numberAt(1, 3), 6);
}

TEST_F(Editing, SizesHaveTheirLimits) {
  const std::tuple<Rows, void (*)(), const char*> cases[] = {
      {{std::string(53, '.')}, AggiungiColonna, "Numero massimo consentito di colonne: 53"},
      {Rows(30, "..."), AggiungiRiga, "Numero massimo consentito di righe: 30"},
      {{"...", "..."}, TogliColonna, "Non ha senso fare un cruciverba con 3 caselle!"},
      {{"....", "....", "...."}, TogliRiga, "Non ha senso un cruciverba con meno di 3 righe"},
  };
  for (const auto& [grid, operation, told] : cases) {
    Open(grid);
    PrendiStrumento(Strumento::CasellaNera);
    operation();
    EXPECT_EQ(user.TakeTexts(), Rows{told});
    EXPECT_EQ(Drawing(), grid);
    EXPECT_EQ(SchemaModificato, Falso);
    EXPECT_EQ(PuntatoreMouse, 4);
    EXPECT_EQ(ModoGriglia, 1);
  }
  Open(Rows(29, std::string(52, '.')));
  AggiungiColonna();
  AggiungiRiga();
  EXPECT_EQ(Drawing(), Rows(30, std::string(53, '.')));
  Open({"....", "....", "....", "...."});
  TogliColonna();
  TogliRiga();
  EXPECT_EQ(Drawing(), Rows(3, "..."));
  // Lines of any length grow in step.
  Open({"....", "...."});
  SetLine(1, "A.");
  SetLine(2, "B.C.D.E.F.G.");
  AggiungiColonna();
  EXPECT_EQ(Drawing(), (Rows{"A....", "BCDE."}));
}

}  // namespace
}  // namespace telarium
