#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <set>

#include "auxiliary/windows/fONTEN.h"
#include "clues/windows/TelarBro.h"
#include "crossworddialogs/windows/Form2.h"
#include "crossworddialogs/windows/FormNew.h"
#include "crossworddialogs/windows/TelarSav.h"
#include "editor/commit.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "editor/startup.h"
#include "editor/windows/Settaggi.h"
#include "editor/windows/form1_fixture.h"
#include "editor/windows/form_commands.h"
#include "editor/windows/menu_table.h"
#include "model/crossword_file.h"
#include "platform/qt/qt_platform.h"
#include "support/crossword_page.h"
#include "support/window_helpers.h"
#include "telarium/desktop.h"

namespace telarium {
namespace {

constexpr int TableButton = 19;
constexpr int ExtractionButton = 20;

TEST_F(Form1Test, OffersOnlyWhatCanBeDoneWithoutACrossword) {
  Start();
  EXPECT_EQ(EnabledButtons(), "Nuovo Apri ");
  for (const char* entry : {"MenuEdit", "MenuUtiliti", "menuSalva"})
    EXPECT_FALSE(form->Voce(entry).isEnabled()) << entry;
  EXPECT_TRUE(form->Voce("MenuL2").isEnabled() && form->Voce("MenuEsci").isEnabled());
  EXPECT_TRUE(form->Voce("Menurett").isChecked() && form->Voce("MenuL1").isChecked());
  EXPECT_FALSE(form->Voce("MenuVis").isChecked());
  EXPECT_EQ(form->windowTitle(), QStringLiteral("Telarium"));
  Resize(200, 150);  // as small as it likes
  EXPECT_TRUE(form->Picture1->isVisible());
}

TEST_F(Form1Test, ShowsTheSplashThatFitsTheScreen) {
  for (const int width : {30, 40}) {
    const Percorso name = width == 30 ? "TELARIUMA.jpg" : "telariumb.JPG";
    ASSERT_TRUE(QImage(width, 20, QImage::Format_RGB32)
                    .save(QString::fromStdString(InFolder(name).string()), "JPG"));
  }
  Start();
  EXPECT_EQ(form->Picture1->width(), form->screen()->size().width() < 700 ? 30 : 40);
}

TEST_F(Form1Test, IsWhatTheProgramsPlatformDrawsOnAndAsksOver) {
  Start();
  PiattaformaQt program;
  CollegaFinestra(program, *form);
  EXPECT_EQ(program.FinestraPrincipale(), &form->Area->Superficie());
  for (const int shape : {PuntatoreCasellaNera, PuntatoreMano}) {
    program.ChiUsa().FormaPuntatore(shape);
    EXPECT_FALSE(form->Area->cursor().pixmap().isNull()) << shape;
  }
}

TEST_F(Form1Test, OffersTheCommandsOfThisProgramOnceThereIsACrossword) {
  StartWith({"CASA", "....", "#..#"});
  EXPECT_EQ(EnabledButtons(),
            "Nuovo Apri Salva Stampa Anteprima HTML CambiaFont AggColonna TogliColonna AggRiga "
            "TogliRiga CasBianca CasNera Tabella Estrazione Edit Compila ");
  for (const char* entry : {"MenuEdit", "MenuUtiliti", "menuSalva", "MenuStampa", "MenuAnteprima"})
    EXPECT_TRUE(form->Voce(entry).isEnabled()) << entry;
  EXPECT_FALSE(form->Picture1->isVisible());
  EXPECT_TRUE(form->windowTitle().startsWith(QStringLiteral("Telarium - 4x3  ")));
  EXPECT_FALSE(form->Voce("MenuNuovo").icon().isNull() || form->Voce("MenuStampa").icon().isNull());
}

TEST_F(Form1Test, OpensACrosswordFromAPage) {
  Draw({"CASA", "A#..", "...."});
  machine.fetches = CrosswordPage();
  Start();
  user.AnswerText("nowhere");
  user.patient = false;
  QTest::keyClick(form.get(), Qt::Key_I, Qt::ControlModifier);
  EXPECT_EQ(user.TakeTexts().size(), 0u) << "broken off, which is no fault";
  EXPECT_TRUE(form->Voce("menurl").isEnabled() && form->Picture1->isVisible());
  EXPECT_EQ(EnabledButtons(), "Nuovo Apri ");

  user.patient = true;
  user.AnswerText("http://somewhere");
  form->Voce("menurl").trigger();
  EXPECT_FALSE(form->Picture1->isVisible() || form->Command3d15->isVisible());
  EXPECT_TRUE(form->EditPremuto() && form->Voce("menuSalva").isEnabled());
  EXPECT_TRUE(form->windowTitle().startsWith(QStringLiteral("Telarium - 4x3")));
  EXPECT_EQ(Shown(OrigineX + 1.5 * LatoCasella, OrigineY + 1.5 * LatoCasella), QColor(Qt::black));
  EXPECT_NE(EnabledButtons(), "Nuovo Apri ");
}

TEST_F(Form1Test, HasMenusWithoutTwoMeaningsForAKey) {
  Start();
  std::set<QString> shortcuts;
  std::set<std::string> names;
  for (const VoceDiMenu& entry : VociDelMenu()) {
    EXPECT_TRUE(names.insert(entry.nome).second) << entry.nome;
    const QAction& action = form->Voce(entry.nome);
    const QString shortcut = action.shortcut().toString();
    EXPECT_EQ(shortcut.isEmpty(), std::string_view(entry.tasti).empty()) << entry.nome;
    EXPECT_TRUE(shortcut.isEmpty() || shortcuts.insert(shortcut).second) << entry.nome;
  }
}

TEST_F(Form1Test, DrawsTheGridBetweenItsBarsAndFollowsItsSize) {
  StartWith({"CA#", "...", "..."});
  SetColour(3, 1, 0x3060C0);
  for (const QSize& size : {QSize(800, 600), QSize(500, 700)}) {
    Resize(size.width(), size.height());
    const double w = form->Area->width(), h = form->Area->height();
    const double t = form->Toolbar1->height(), s = form->StatusBar1->height();
    EXPECT_EQ(LatoCasella, std::min(std::lrint((w - 16) / 3), std::lrint((h - t - s - 18) / 3)));
    EXPECT_EQ(OrigineX, std::lrint((w - 3 * LatoCasella) / 2));
    EXPECT_EQ(OrigineY, std::lrint((t + h - 2 - s - 3 * LatoCasella) / 2));
    const double middle = LatoCasella / 2.0;
    EXPECT_EQ(Shown(OrigineX + 2 * LatoCasella + middle, OrigineY + middle),
              QColor(0xC0, 0x60, 0x30));
    EXPECT_EQ(Shown(OrigineX + middle, OrigineY + LatoCasella + middle), QColor(Qt::white));
    EXPECT_EQ(Shown(OrigineX + middle, OrigineY + 0.5), QColor(Qt::black));
    EXPECT_EQ(Shown(OrigineX + middle, OrigineY - 3 + 0.5), QColor(128, 0, 0));
    EXPECT_NE(Shown(OrigineX + middle, OrigineY - 5 + 0.5), QColor(128, 0, 0));
  }
  form->resize(100, 100);
  QTest::qWait(0);
  EXPECT_GE(form->width(), 434) << "6500 twips";
  EXPECT_GE(form->height(), 300) << "4500 twips";
}

TEST_F(Form1Test, SavesByItsKeyAndEndsByMenuEsci) {
  StartWith({"CASA"});
  MarkModified();
  QTest::keyClick(form.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(SchemaModificato, Falso);

  MarkModified();
  user.Answer(Risposta::Annulla);
  // Not through the menu: the end, an exception in tests, must not cross the window library.
  EXPECT_THROW(form->Esegui([this] { ComandoDellaVoce("MenuEsci")(*form); }), ProgramDone);
  EXPECT_EQ(user.TakeMessages().front().titolo, "Modifica del file corrente");
}

TEST_F(Form1Test, RunsTheOptionsAndLinksOfItsMenus) {
  StartWith({"CASA"});
  for (const char* entry : {"MenuInf", "MenuVis", "Menurett", "MenuL1"})
    form->Voce(entry).trigger();
  EXPECT_TRUE(form->EstrazioneAutomatica.ProvaInfinita && StampaSoluzioni && !RettangoloParola);
  EXPECT_TRUE(form->Voce("MenuInf").isChecked() && form->Voce("MenuVis").isChecked());
  EXPECT_FALSE(form->Voce("Menurett").isChecked());
  EXPECT_TRUE(form->Voce("MenuL1").isChecked()) << "choosing the current language changes nothing";

  Click(form->Picture2);
  for (const char* entry : {"menutelari", "MenuMail", "MenuI1", "MenuAiuto"})
    form->Voce(entry).trigger();
  EXPECT_EQ(machine.opened,
            (std::vector<std::string>{
                "https://www.telarium.example", "https://www.telarium.example/telarium/",
                "mailto:autore@telarium.example", "https://dizionario-2.example",
                InFolder("TELARIUM7.mht").string()}));
  machine.opens = false;
  form->Voce("MenuPHP").trigger();
  EXPECT_EQ(user.TakeTexts().size(), 1u) << "no program for it";
}

TEST_F(Form1Test, KeepsTheEditButtonPressedBehindEachButtonOfTheToolbar) {
  StartWith({"CASA"});
  EXPECT_FALSE(form->EditPremuto());
  ClickButton(4);
  EXPECT_TRUE(form->EditPremuto());
  EXPECT_EQ(ModoGriglia, 0) << "a save enters no mode";
  ClickButton(PulsanteEdit);  // turned over by the click, then pressed again
  EXPECT_TRUE(form->EditPremuto());
  EXPECT_EQ(ModoGriglia, 0);
  form->Voce("Menudef").trigger();
  EXPECT_EQ(ModoGriglia, 1);
  form->Command3d15->show();
  ModoGriglia = -1;
  form->Voce("menuRidisegna").trigger();
  EXPECT_TRUE(form->Command3d15->isHidden());
  EXPECT_EQ(ModoGriglia, 1);
}

TEST_F(Form1Test, TheButtonsWithAMenuOpenIt) {
  StartWith({"CASA"});
  for (const auto& [button, menu] : {std::pair(8, "Menuhtml"), std::pair(22, "menuCompila")}) {
    ClickButton(button);
    QWidget* open = QApplication::activePopupWidget();
    EXPECT_EQ(open, form->Voce(menu).menu());
    if (open) open->close();
  }
}

TEST_F(Form1Test, DrawsWhatItsModalWindowsSet) {
  StartWith({"CA#", "...", "..."});
  const auto frameColour = [this] { return Shown(OrigineX + LatoCasella, OrigineY - 7 + 0.5); };
  EXPECT_NE(frameColour(), QColor(128, 0, 0));
  WhenOpen<Settaggi>(*form, [](Settaggi& window) {
    window.HScroll6->setValue(5);
    QTest::keyClick(&window, Qt::Key_Return);
  });
  form->Voce("menusetschema").trigger();
  EXPECT_EQ(frameColour(), QColor(128, 0, 0));
  WhenOpen<fONTEN>(*form, [](fONTEN& window) {
    EXPECT_EQ(window.LstFonts->currentItem()->text(), QStringLiteral("Arial"));
    QTest::keyClicks(window.LstFonts, QStringLiteral("Liberation Mono"));
    QTest::keyClick(window.LstFonts, Qt::Key_Return);
  });
  form->Voce("MenuFont").trigger();
  EXPECT_EQ(NomeFont, "Liberation Mono");
}

TEST_F(Form1Test, TheTableOfWordsLeavesTheGeometryOfTheGrid) {
  StartWith({"CASA", "....", "SOLE"});
  Resize(700, 600);
  const int side = LatoCasella;
  WhenOpen<TelarBro>(*form, [](TelarBro& window) {
    QTest::keyClick(window.Gitter1, Qt::Key_Return);
    QTest::keyClick(window.Text1, Qt::Key_Return);
    Click(window.Command3d1);
  });
  ClickButton(TableButton);
  EXPECT_EQ(LatoCasella, side) << "of the main window again";
}

TEST_F(Form1Test, ShowsTheLogoPointerOverTheLogoAlone) {
  StartWith({"CASA"});
  MoveOver(form->Picture2);
  MoveOver(form->Toolbar1);
  EXPECT_EQ(PuntatoreMouse, 99);
  MoveOver(form->Area);
  EXPECT_EQ(PuntatoreMouse, 0);
  ImpostaPuntatoreMouse(7);
  form->Label1->move(10, 10);
  MoveOver(form->Toolbar1);
  EXPECT_EQ(PuntatoreMouse, 0);
  EXPECT_GE(form->Label1->y(), form->Area->height());
  Resize(500, 400);
  Resize(700, 600);
  EXPECT_GE(form->Label1->y(), form->Area->height()) << "parked below the old height";
}

TEST_F(Form1Test, FillsTheGridBeforeTheUsersEyes) {
  StartWith({"....", ".##.", "....", "...."});
  Resize(700, 600);
  // CASA or SOLE across; what crosses them fails somewhere, whatever is drawn.
  user.Answer(Risposta::Ok);
  user.AnswerAllDeadEnds(Risposta::Si);
  user.AnswerDeadEnd(Risposta::No);
  int letterPixels = 0;
  bool sealedOff = true;
  std::int64_t attempts = 0;
  form->EstrazioneAutomatica.Segue([&](const AvanzamentoEstrazione& progress) {
    attempts = progress.tentativo;
    const bool goesOn = form->SeguiEstrazione(progress);
    sealedOff = sealedOff && !form->Toolbar1->isEnabled() && !form->menuBar()->isEnabled() &&
                form->Avanzamento->isVisible();
    if (progress.slotCollocati == 1) {  // the first word is on the screen
      const QImage shown = form->Area->grab().toImage();
      for (int x = 0; x < shown.width(); ++x)
        letterPixels +=
            shown.pixelColor(x, static_cast<int>((OrigineY + LatoCasella / 2) *
                                                 shown.devicePixelRatio())) == Qt::black;
    }
    return goesOn;
  });
  form->Voce("MenuEstrazione").trigger();
  EXPECT_GT(user.TakeTexts().size(), 2u);
  EXPECT_GT(attempts, 1) << "No began anew";
  EXPECT_TRUE(sealedOff);
  EXPECT_GT(letterPixels, 8);
  for (const std::string& row : Drawing())
    EXPECT_EQ(row.find('.'), std::string::npos) << row;
  EXPECT_TRUE(form->Toolbar1->isEnabled() && form->menuBar()->isEnabled());
  EXPECT_FALSE(form->Avanzamento->isVisible());
  EXPECT_EQ(PuntatoreMouse, 0);
}

// An endless run on a grid that no dictionary can fill, until `stop` is done to the window.
class EndlessFill : public Form1Test {
 protected:
  void RunUntil(const std::function<void()>& stop) {
    StartWith({"......", ".#.#.#", "......"});
    form->Voce("MenuInf").trigger();
    user.Answer(Risposta::Ok);
    form->EstrazioneAutomatica.Segue([&](const AvanzamentoEstrazione& p) {
      if (p.tentativo == 3 && p.slotCollocati == 0) QTimer::singleShot(0, form.get(), stop);
      return form->SeguiEstrazione(p);
    });
    ClickButton(ExtractionButton);
    user.TakeTexts();
    EXPECT_EQ(ModoGriglia, 0) << "the Edit button was not pressed yet";
    EXPECT_TRUE(form->EditPremuto());
    EXPECT_FALSE(form->Avanzamento->isVisible());
    EXPECT_EQ(Drawing().size(), 3u);
  }
};

TEST_F(EndlessFill, EndsByItsButton) {
  QString told;
  RunUntil([&] {
    told = form->Avanzamento->Testo();
    QTest::mouseClick(form->Avanzamento->findChild<QPushButton*>(), Qt::LeftButton);
  });
  EXPECT_TRUE(told.startsWith(QStringLiteral("Tentativo ")) &&
              told.contains(QStringLiteral("al secondo")))
      << told.toStdString();
}

TEST_F(EndlessFill, EndsByEscAndHearsNothingElse) {
  RunUntil([this] {
    MarkModified();
    QTest::keyClick(form.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(SchemaModificato, Vero) << "saved in the middle of a fill";
    form->close();
    EXPECT_TRUE(form->isVisible());
    MoveOver(form->Picture2);
    EXPECT_EQ(PuntatoreMouse, PuntatoreClessidra);
    form->RiceviDaFuori(InFolder("missing.tlrm"));  // waits for the end
    EXPECT_EQ(user.TakeMessages().size(), 1u) << "only the question before the run";
    form->resize(form->width() - 100, form->height() - 100);
    user.Answer(Risposta::Annulla);  // to the saving question of the file from outside
    QTest::keyClick(form.get(), Qt::Key_Escape);
  });
}

// What a person does with the mouse on the grid, by cells.
class RoadTest : public Form1Test {
 protected:
  void MoveTo(int column, int row) {
    SendMouse(QEvent::MouseMove, Qt::NoButton, Middle(column, row));
  }
  void Press(int column, int row, Qt::MouseButton button = Qt::LeftButton) {
    MoveTo(column, row);
    SendMouse(QEvent::MouseButtonPress, button, Middle(column, row));
    SendMouse(QEvent::MouseButtonRelease, button, Middle(column, row));
  }
  void ClickBeside() { SendMouse(QEvent::MouseButtonPress, Qt::LeftButton, QPointF(2, 100)); }

  std::string Row(int row) const { return Drawing().at(static_cast<std::size_t>(row) - 1); }

 private:
  static QPointF Middle(int column, int row) {
    return {GeometriaDelloSchema().BordoSinistro(column) + LatoCasella / 2.0,
            GeometriaDelloSchema().BordoAlto(row) + LatoCasella / 2.0};
  }
  void SendMouse(QEvent::Type type, Qt::MouseButton button, QPointF point) {
    QMouseEvent event(type, point, form->Area->mapToGlobal(point), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(form->Area, &event);
  }
};

constexpr int BlackCellButton = 17;

TEST_F(RoadTest, ACrosswordFromNothingToTheArchiveAndBack) {
  WriteFile("STANDARD.dfc", ".....\r\n.*.*.\r\n.....\r\n.*.*.\r\n.....\r\n-\r\n");
  Start();
  const Percorso file = InFolder("Archivio cruciverba") / "Primo.tlrm";

  WhenOpen<FormNew>(*form, [](FormNew& window) { Click(window.Picture1[0]); });
  ClickButton(1);
  EXPECT_EQ(Row(2), ".#.#.");
  EXPECT_TRUE(form->windowTitle().endsWith(QStringLiteral("5x5  NuovoCruciverba.tlrm")));
  EXPECT_FALSE(form->Picture1->isVisible());
  EXPECT_TRUE(form->Voce("MenuSalvaCN").isEnabled());
  EXPECT_EQ(PuntatoreMouse, 0);

  ClickButton(BlackCellButton);
  Press(1, 1);
  Press(5, 1);
  Press(5, 1, Qt::RightButton);
  EXPECT_EQ(Row(1), "#....");
  MoveTo(5, 1);
  EXPECT_EQ(form->Label1->text(), QStringLiteral(" Casella bianca "));
  Press(4, 2);
  Press(4, 2, Qt::RightButton);
  ClickBeside();
  EXPECT_EQ(ModoGriglia, 1);
  MoveTo(2, 2);
  EXPECT_EQ(PuntatoreMouse, 0);
  user.colours = {0x3060C0};
  Press(2, 2);
  EXPECT_EQ(Shown(GeometriaDelloSchema().BordoSinistro(2) + LatoCasella / 2.0,
                  GeometriaDelloSchema().BordoAlto(2) + LatoCasella / 2.0),
            QColor(0xC0, 0x60, 0x30));
  MoveTo(1, 2);
  EXPECT_EQ(form->Label1->text(), QStringLiteral("  4 vert. - "));
  EXPECT_TRUE(form->Shape1->isVisible());
  EXPECT_LT(form->Label1->y(), form->Area->height());
  MoveOver(form->Label1);
  EXPECT_GE(form->Label1->y(), form->Area->height()) << "never between the pointer and the grid";

  for (const auto& [entry, cells] :
       {std::pair{"MenuAC", 30u}, {"MenuAR", 36u}, {"MenuTC", 30u}, {"MenuTR", 25u}}) {
    form->Voce(entry).trigger();
    EXPECT_FALSE(form->Shape1->isVisible());
    EXPECT_EQ(Drawing().size() * Row(1).size(), cells);
  }

  WhenOpen<TelarSav>(*form, [](TelarSav& window) {
    window.Text1->setText(QStringLiteral("Primo"));
    QTest::keyClick(window.Text1, Qt::Key_Return);
  });
  form->Voce("menuSalva").trigger();
  EXPECT_EQ(NomeCruciverba, file);
  const std::string saved = ReadFile(file);

  for (const Risposta answer : {Risposta::Annulla, Risposta::Ok}) {
    form->Voce("MenuCN").trigger();
    Press(3, 3);
    user.Answer(answer);
    WhenOpen<Form2>(*form, [](Form2& window) { Click(window.Command3d1); });
    form->Voce("MenuApri").trigger();
    EXPECT_EQ(ReadFile(file) == saved, answer == Risposta::Annulla);
    EXPECT_EQ(Row(3), answer == Risposta::Annulla ? "....." : "..#..");
    EXPECT_EQ(SchemaModificato, Falso);
  }
  EXPECT_EQ(ColoreCasella(2, 2), 0x3060C0);
  EXPECT_EQ(user.TakeTexts().size(), 2u);
}

TEST_F(RoadTest, GivingUpWithoutACrosswordBringsTheSplashBack) {
  Start();
  WhenOpen<Form2>(*form, [&](Form2& window) {
    EXPECT_FALSE(form->Picture1->isVisible());
    QTest::keyClick(window.File1, Qt::Key_Escape);
  });
  form->Voce("MenuApri").trigger();
  EXPECT_TRUE(form->Picture1->isVisible());
  EXPECT_EQ(EnabledButtons(), "Nuovo Apri ");
  form->Voce("MenuAiuto").trigger();  // ends the look of a preview
  EXPECT_EQ(EnabledButtons(), "Nuovo Apri ");
  EXPECT_FALSE(form->Voce("MenuEdit").isEnabled());
  ClickBeside();
  EXPECT_EQ(NumColonne, 0);
}

}  // namespace
}  // namespace telarium
