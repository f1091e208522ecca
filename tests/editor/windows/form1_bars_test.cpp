#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

#include "editor/windows/form1_fixture.h"

// The bars of the main window, and what holds them while a fill runs.
namespace telarium {
namespace {

constexpr int WhiteCellButton = 16;
constexpr int BlackCellButton = 17;

// The entries of a menu bar or menu with their keys, one a line, those below each one indented.
void Tell(const QWidget& menu, const QString& indent, QString& text) {
  for (const QAction* entry : menu.actions()) {
    QString line = entry->isSeparator() ? QStringLiteral("-") : entry->text();
    if (!entry->shortcut().isEmpty())
      line += QStringLiteral(" [%1]").arg(entry->shortcut().toString());
    if (!entry->isVisible()) line += QStringLiteral(" (hidden)");
    text += indent + line + u'\n';
    if (entry->menu()) Tell(*entry->menu(), indent + QStringLiteral("  "), text);
  }
}

TEST_F(Form1Test, MenusAndToolbarSayWhatTheyDo) {
  Start();
  QString text;
  Tell(*form->menuBar(), {}, text);
  for (int number = 1; number <= NumPulsanti; ++number) {
    const QAction& button = form->Toolbar1->Pulsante(number);
    text += QStringLiteral("%1 %2\n").arg(number).arg(button.isSeparator() ? QStringLiteral("-")
                                                                           : button.toolTip());
  }
  EXPECT_EQ(FirstDifference(text.toStdString(),
                            ReadFile(TELARIUM_SOURCE_DIR "/tests/editor/windows/bars.txt")),
            "");
}

int EndOfButtons(const BarraStrumenti& bar) {
  int end = 0;
  for (const QWidget* child : bar.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
    if (child->isVisible()) end = std::max(end, child->geometry().right() + 1);
  return end;
}

TEST_F(Form1Test, TheLogoMakesWayForTheButtons) {
  StartWith({"CASA"});
  for (const int width : {1366, 1024, 800, 700, 600, 500, 1366}) {
    Resize(width, 600);
    QCoreApplication::processEvents();
    const bool room = form->Picture2->x() >= EndOfButtons(*form->Toolbar1);
    EXPECT_EQ(form->Picture2->isVisible(), room) << width;
    EXPECT_TRUE(room || width < 1024) << width;
    EXPECT_FALSE(room && width == 500) << "a width that tests nothing";
  }
}

TEST_F(Form1Test, TheToolInUseShowsAmongTheButtons) {
  StartWith({"CASA", "...."});
  const auto pressed = [this] {
    std::string keys;
    for (const int number : {WhiteCellButton, BlackCellButton, PulsanteEdit}) {
      const QAction& button = form->Toolbar1->Pulsante(number);
      if (button.isChecked()) keys += button.objectName().toStdString() + ' ';
    }
    return keys;
  };
  ClickButton(WhiteCellButton);
  EXPECT_EQ(pressed(), "CasBianca Edit ");
  ClickButton(WhiteCellButton);
  EXPECT_EQ(pressed(), "CasBianca Edit ") << "a second click chooses it again";
  form->Voce("MenuCN").trigger();
  EXPECT_EQ(pressed(), "CasNera Edit ");
  const QPoint cell(OrigineX + LatoCasella / 2, OrigineY + LatoCasella / 2);
  QTest::mouseClick(form->Area, Qt::LeftButton, {}, cell);
  EXPECT_EQ(pressed(), "CasNera ");
  QTest::mouseClick(form->Area, Qt::RightButton, {}, cell);
  EXPECT_EQ(pressed(), "CasBianca ") << "the tool has changed";
  MoveOver(form->Picture2);
  EXPECT_EQ(pressed(), "") << "the hand takes its place";
  ClickButton(BlackCellButton);
  QTest::mouseClick(form->Area, Qt::LeftButton, {}, QPoint(2, 100));
  EXPECT_EQ(pressed(), "Edit ") << "a click beside the grid";
}

TEST_F(Form1Test, OnlyTheLeftButtonOpensWhatIsBehindLogoAndStatusBar) {
  Start();
  int opened = 0;
  form->StatusBar1->QuandoPremuta([&] { ++opened; });
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
    QTest::mouseClick(form->StatusBar1, button);
    QTest::mouseClick(form->Picture2, button);
    const bool left = button == Qt::LeftButton;
    EXPECT_EQ(opened, left ? 1 : 0);
    EXPECT_EQ(machine.opened.size(), left ? 1u : 0u);
  }
}

// Counts how often a widget is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& of) { of.installEventFilter(this); }
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

TEST_F(Form1Test, WhatAFillTellsBehindAQuestionIsItsLatest) {
  PannelloEstrazione panel(nullptr);
  panel.resize(300, 30);
  panel.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel, Patience));
  panel.Inizia();
  panel.Segui({.tentativo = 1}, false);  // painted, and the next time is not yet
  PaintCounter counter(panel);
  panel.Segui({.tentativo = 1, .slotCollocati = 3, .slotTotali = 8}, false);
  EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > 0; }, Patience));
  EXPECT_EQ(panel.Testo(), QStringLiteral("Parole: 3 di 8"));
}

TEST_F(Form1Test, AFillTakesTheTipAwayAndLeavesTheWindowFreeHoweverItEnds) {
  StartWith({"CASA", "...."});
  form->Label1->move(50, 50);
  user.Answer(Risposta::Ok);
  form->EstrazioneAutomatica.Segue([&](const AvanzamentoEstrazione& progress) -> bool {
    EXPECT_GE(form->Label1->y(), form->Area->height());
    form->SeguiEstrazione(progress);
    throw std::runtime_error("no memory, or the like");
  });
  EXPECT_THROW(form->Esegui([this] { form->Estrai(); }), std::runtime_error);
  user.TakeTexts();
  EXPECT_TRUE(form->Toolbar1->isEnabled() && form->menuBar()->isEnabled());
  EXPECT_TRUE(form->Avanzamento->isHidden());
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
  form->Voce("menuRidisegna").trigger();
  EXPECT_EQ(ModoGriglia, ModoModifica) << "commands run again";
  EXPECT_EQ(Shown(OrigineX + LatoCasella / 2.0, OrigineY + 0.5), QColor(Qt::black));
}

// A fill holds the geometry of the grid that it writes on; the window is drawn anew behind it.
TEST_F(Form1Test, ANewSizeDuringACommandWaitsForItsEnd) {
  StartWith({"....", ".##.", "...."});
  Resize(900, 700);
  const int side = LatoCasella;
  user.Answer(Risposta::Ok);
  user.AnswerAllDeadEnds(Risposta::Si);
  bool kept = true;
  form->EstrazioneAutomatica.Segue([&](const AvanzamentoEstrazione& progress) {
    if (progress.slotCollocati == 1) {
      form->resize(500, 400);
      QCoreApplication::processEvents();
    }
    kept = kept && LatoCasella == side;
    return true;
  });
  form->Voce("MenuEstrazione").trigger();
  user.TakeTexts();
  EXPECT_TRUE(kept);
  EXPECT_EQ(form->size(), QSize(500, 400));
  const double height =
      form->Area->height() - form->Toolbar1->height() - form->StatusBar1->height();
  EXPECT_EQ(LatoCasella,
            std::min(std::lrint((form->Area->width() - 16) / 4.0), std::lrint((height - 18) / 3)));
}

}  // namespace
}  // namespace telarium
