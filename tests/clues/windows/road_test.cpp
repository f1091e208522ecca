#include <QMenuBar>

#include "clues/windows/TelarBro.h"
#include "clues/windows/TelarDef.h"
#include "clues/windows/frmParole.h"
#include "clues/windows/telariummdb.h"
#include "editor/cell_editing.h"
#include "editor/windows/form1_fixture.h"
#include "editor/word_pointing.h"
#include "support/clue_store.h"

// The road of a grid's clues through the main window, from the fill to the encyclopedia.
namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class ClueRoad : public Form1Test {
 protected:
  void SetUp() override {
    Form1Test::SetUp();
    MakeStore("CASA\tF\tAbitazione\nCASA\tD\tFocolare\nSOLE\tF\tAstro\nCS\tF\tIniziali\n");
  }

  void Run(const char* entry) { form->Voce(entry).trigger(); }

  static void Click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }

  // Clicks on the start cell of the word that the pointer means there.
  void ClickWord(int column, int row, bool horizontal) {
    const double x = OrigineX + (column - 1) * LatoCasella, y = OrigineY + (row - 1) * LatoCasella;
    const double near = LatoCasella / 4.0, far = LatoCasella / 2.0;
    const QPoint point =
        QPointF(x + (horizontal ? far : near), y + (horizontal ? near : far)).toPoint();
    QTest::mouseMove(form->Area, point + QPoint(1, 1));
    QTest::mouseMove(form->Area, point);
    PassaSullaSuperficie(point.x(), point.y());  // the offscreen platform follows no pointer
    QTest::mouseClick(form->Area, Qt::LeftButton, {}, point);
  }

  std::string Report() {
    const Texts texts = user.TakeTexts();
    return texts.size() == 1 ? texts.front() : "";
  }
};

TEST_F(ClueRoad, GridGetsItsCluesAndTheEncyclopediaTheNewOnes) {
  StartWith({"....", "#.#.", "...."});
  machine.draws.clear();
  user.AnswerAllDeadEnds(Risposta::Si);
  user.Answer(Risposta::Ok);
  Run("MenuEstrazione");
  user.TakeTexts();
  EXPECT_EQ(Drawing()[0].find('.'), std::string::npos) << "filled";

  StartWith({"CASA", "#.#.", "SOLE"});
  for (const auto& [entry, clue] :
       {std::pair{"Menuprelfac", "Abitazione"}, {"menupreldif", "Focolare"}}) {
    Run(entry);
    EXPECT_TRUE(Report().find("compilate N. 2 definizioni orizzontali e N. 0 ") !=
                std::string::npos);
    EXPECT_EQ(Definizione(1, 1, Orizzontale), clue);
  }
  machine.draws = {0.0, 0.0};
  Run("Menupreltutt");
  EXPECT_NE(Report(), "");

  // The table takes the fetched clues over, and a changed word changes the crossing one.
  WhenOpen<TelarBro>(*form, [](TelarBro& window) {
    QTest::keyClick(window.Gitter1, Qt::Key_Return);
    window.Text1->setText(QStringLiteral("CASE"));
    QTest::keyClick(window.Text1, Qt::Key_Return);
    Click(window.Command3d1);
  });
  Run("MenuParole");
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "Abitazione");
  EXPECT_EQ(ParolaCasella(4, 1, Verticale), "E.E");

  // The clue editor finds another word.
  WhenOpen<TelarDef>(*form, [](TelarDef& window) {
    Click(window.Check3d1[3]);
    Click(window.Command3D4);
    EXPECT_EQ(window.Combo1->currentText(), QStringLiteral("CASA"));
    emit window.Combo1->textActivated(window.Combo1->currentText());
    window.Text1->setPlainText(QStringLiteral("Dove si torna"));
    QTest::keyClick(window.Text1, Qt::Key_Return);
  });
  Run("Menudef");  // the table has left the mode in which a click picks a word
  ClickWord(1, 1, true);
  EXPECT_EQ(Drawing().front(), "CASA");
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "Dove si torna");
  EXPECT_EQ(SchemaModificato, Vero);

  Run("menuSalvaDef");
  EXPECT_NE(Report().find("aggiunte 0 parole all'enciclopedia.\r\nSono state aggiornate 1 "),
            std::string::npos);
  Run("menuSalvaDef");
  EXPECT_NE(Report().find("aggiunte 0 parole all'enciclopedia.\r\nSono state aggiornate 0 "),
            std::string::npos);
  EXPECT_EQ(Stored("CASA"), "Abitazione\r\nDove si torna");
}

TEST_F(ClueRoad, CancelledTableLeavesTheFetchedClues) {
  StartWith({"CASA", "#.#.", "SOLE"});
  SetClue(1, 3, Orizzontale, "vecchia");
  ASSERT_TRUE(ScriviIstantanea());
  Run("Menuprelfac");
  user.TakeTexts();
  WhenOpen<TelarBro>(*form, [](TelarBro& window) {
    QTest::keyClick(window.Gitter1, Qt::Key_Return);
    window.Text1->setText(QStringLiteral("COSE"));
    window.Text2->setText(QStringLiteral("Oggetti"));
    QTest::keyClick(window.Text1, Qt::Key_Return);
    Click(window.Command3d2);
  });
  Run("MenuParole");
  EXPECT_EQ(Drawing().front(), "CASA");
  EXPECT_EQ(Definizione(1, 1, Orizzontale), "Abitazione");
  EXPECT_EQ(Definizione(1, 3, Orizzontale), "Astro");
}

TEST_F(ClueRoad, BrowserIsReachedFromTheMenuAndLeadsToTheTable) {
  StartWith({"CASA", "#.#.", "SOLE"});
  WhenOpen<telariummdb>(*form, [this](telariummdb& window) {
    user.AnswerText("so");
    Click(window.Cerca);
    EXPECT_EQ(window.lblStatus->text(), QStringLiteral("Record: 3"));
    WhenOpen<frmParole>(window, [](frmParole& table) {
      Click(table.cmdDelete);
      Click(table.cmdClose);
    });
    Click(window.Command1);
  });
  Run("Menudefiniz");
  EXPECT_EQ(Stored("CASA"), "?") << "the table begins on its first row";
  EXPECT_EQ(Stored("SOLE"), "Astro");
}

TEST_F(ClueRoad, HiddenButtonImportsTheClueFile) {
  StartWith({"CASA", "#.#.", "SOLE"});
  EXPECT_FALSE(form->Command1->isVisible());
  EXPECT_EQ(form->Command1->text(), QStringLiteral("Bottone per importare le definizioni"));
  WriteFile("definizIONI.txt", "LUNA\r\nSplende di notte\r\nCASA\r\nTetto\r\n");
  form->Command1->click();
  EXPECT_NE(Report().find("aggiunte 1 parole"), std::string::npos);
  EXPECT_EQ(form->Command1->text(), QStringLiteral("1 LUNA"));
  EXPECT_EQ(Stored("CASA"), "Abitazione\r\nTetto");
  EXPECT_TRUE(form->menuBar()->isEnabled());
}

}  // namespace
}  // namespace telarium
