#include <QApplication>
#include <QTest>

#include "auxiliary/windows/frmTip.h"
#include "editor/history_commands.h"
#include "editor/windows/LavoroNonSalvato.h"
#include "editor/windows/StoriaDelleModifiche.h"
#include "editor/windows/form1_fixture.h"
#include "model/documento.h"

// Undo, redo, the list of steps and the offer of lost work, in the main window.
namespace telarium {
namespace {

using Rows = std::vector<std::string>;

class HistoryWindowsTest : public Form1Test {
 protected:
  void TearDown() override {
    Watch(false);
    Form1Test::TearDown();
  }

  // The history as the program has it from its start to its end.
  void Watch(bool watched = true) {
    ImpostaCronologia(nullptr);
    history_.reset();
    if (!watched) return;
    history_ = std::make_unique<Cronologia>(IlDocumento(), InFolder("cronologia"), [this] {
      return std::chrono::sys_seconds(std::chrono::seconds(++seconds_));
    });
    ImpostaCronologia(history_.get());
  }

  // The program is killed, and starts again.
  void StartAnew(const Percorso& commandLine = {}) {
    Watch(false);
    Forget();
    Watch();
    Start(commandLine);
  }

  void StartWatched(const std::vector<std::string>& rows) { StartAnew(CrosswordFile(rows)); }

  void Blacken(int column, int row) {
    form->Voce("MenuCN").trigger();
    QTest::mouseClick(form->Area, Qt::LeftButton, {},
                      QPoint(OrigineX + LatoCasella * (2 * column - 1) / 2,
                             OrigineY + LatoCasella * (2 * row - 1) / 2));
  }

  // The captions of the three entries that are enabled, each with a bar behind it.
  std::string Enabled() const {
    std::string captions;
    for (const char* entry : {"MenuAnnulla", "MenuRipeti", "MenuCronologia"})
      if (form->Voce(entry).isEnabled()) captions += form->Voce(entry).text().toStdString() + '|';
    return captions;
  }

  std::string Title() const { return form->windowTitle().toStdString(); }

 private:
  std::unique_ptr<Cronologia> history_;
  int seconds_ = 0;
};

TEST_F(HistoryWindowsTest, AClickIsTakenBackAndBroughtAgain) {
  StartWatched({"CASA", "...."});
  EXPECT_EQ(Enabled(), "Cronolo&gia...|");
  Blacken(2, 2);
  const std::string told = ReadFile(PercorsoIstantanea());
  EXPECT_EQ(Enabled(), "&Annulla modifica: Casella nera 2,2|Cronolo&gia...|");
  form->Shape1->show();
  QTest::keyClick(form.get(), Qt::Key_Backspace, Qt::AltModifier);
  EXPECT_EQ(Drawing(), (Rows{"CASA", "...."}));
  EXPECT_EQ(Enabled(), "&Ripeti modifica: Casella nera 2,2|Cronolo&gia...|");
  EXPECT_FALSE(SchemaModificato || form->Shape1->isVisible());
  EXPECT_EQ(ReadFile(PercorsoIstantanea()), ReadFile(InFolder("mio.tlrm")));
  EXPECT_EQ(PuntatoreMouse, PuntatoreCasellaNera) << "the tool stays in use";
  EXPECT_EQ(Shown(OrigineX + LatoCasella * 1.5, OrigineY + LatoCasella * 1.5), QColor(Qt::white));
  QTest::keyClick(form.get(), Qt::Key_Backspace, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(Drawing(), (Rows{"CASA", ".#.."}));
  EXPECT_TRUE(SchemaModificato);
  EXPECT_EQ(ReadFile(PercorsoIstantanea()), told);
  // From a print preview too.
  form->Voce("MenuAnteprima").trigger();
  ASSERT_TRUE(form->Command3d15Visibile());
  form->Voce("MenuAnnulla").trigger();
  EXPECT_FALSE(form->Command3d15Visibile());
  EXPECT_TRUE(form->Voce("MenuEdit").isEnabled());
  EXPECT_EQ(Drawing(), (Rows{"CASA", "...."}));
}

TEST_F(HistoryWindowsTest, AFillAndAnOpeningAreOneStepEach) {
  StartWatched({"....", "####"});
  user.Answer(Risposta::Ok);  // the warning
  user.AnswerAllDeadEnds(Risposta::Si);
  form->Voce("MenuEstrazione").trigger();
  user.TakeTexts();
  ASSERT_NE(Drawing()[0], "....");
  form->Voce("MenuAnnulla").trigger();
  EXPECT_EQ(Drawing(), (Rows{"....", "####"}));
  form->Voce("MenuRipeti").trigger();
  const Rows filled = Drawing();
  EXPECT_NE(filled[0], "....");

  ASSERT_TRUE(std::filesystem::copy_file(InFolder("mio.tlrm"), InFolder("altro.tlrm")));
  user.Answer(Risposta::Annulla);  // the fill is not saved
  form->RiceviDaFuori(InFolder("altro.tlrm"));
  user.TakeTexts();
  EXPECT_NE(Title().find("altro.tlrm"), std::string::npos);
  form->Voce("MenuAnnulla").trigger();
  EXPECT_EQ(Drawing(), filled);
  EXPECT_NE(Title().find("mio.tlrm"), std::string::npos);
  EXPECT_EQ(NomeCruciverba, InFolder("mio.tlrm"));
  EXPECT_TRUE(SchemaModificato);
  form->Voce("MenuRipeti").trigger();
  EXPECT_EQ(NomeCruciverba, InFolder("altro.tlrm"));
}

TEST_F(HistoryWindowsTest, TheListLeadsToAnyStep) {
  StartWatched({"CASA", "...."});
  Blacken(1, 2);
  Blacken(2, 2);
  Blacken(3, 2);
  form->Voce("MenuAnnulla").trigger();
  WhenOpen<StoriaDelleModifiche>(*form, [](StoriaDelleModifiche& window) {
    ExpectNamedControls(window);
    EXPECT_EQ(TabOrder(window), "Passi Chiudi ");
    ASSERT_EQ(window.Passi->count(), 4);
    EXPECT_EQ(window.Passi->currentRow(), 2);
    EXPECT_TRUE(window.Passi->item(2)->text().endsWith(u"Casella nera 2,2  (stato attuale)"));
    EXPECT_TRUE(window.Passi->item(3)->text().endsWith(u"Casella nera 3,2  (annullata)"));
    EXPECT_FALSE(window.Vai->isEnabled());
    QTest::keyClick(window.Passi, Qt::Key_Escape);
  });
  form->Voce("MenuCronologia").trigger();
  EXPECT_EQ(Drawing(), (Rows{"CASA", "##.."}));
  WhenOpen<StoriaDelleModifiche>(*form, [](StoriaDelleModifiche& window) {
    const QImage before = window.Figura->grab().toImage();
    QTest::keyClick(window.Passi, Qt::Key_Home);
    EXPECT_NE(window.Figura->grab().toImage(), before);
    EXPECT_EQ(Drawing(), (Rows{"CASA", "##.."})) << "only looked at";
    QTest::keyClick(window.Passi, Qt::Key_Return);
  });
  form->Voce("MenuCronologia").trigger();
  EXPECT_EQ(Drawing(), (Rows{"CASA", "...."}));
  EXPECT_EQ(Enabled(), "&Ripeti modifica: Casella nera 1,2|Cronolo&gia...|");
}

TEST_F(HistoryWindowsTest, LostWorkIsOfferedOnceAStartUntilItIsDealtWith) {
  const auto startWithOffer = [this](const std::function<void(LavoroNonSalvato&)>& act) {
    int offers = 0;
    WhenOpen<LavoroNonSalvato>(*qApp, [&](LavoroNonSalvato& window) {
      ++offers;
      act(window);
    });
    StartAnew();
    QCoreApplication::processEvents();
    EXPECT_EQ(offers, 1);
  };
  StartWatched({"CASA", "...."});
  Blacken(2, 2);
  startWithOffer([](LavoroNonSalvato& window) {
    ExpectNamedControls(window);
    EXPECT_EQ(TabOrder(window), "Lavori Recupera Elimina DecidiDopo ");
    ASSERT_EQ(window.Lavori->count(), 1);
    EXPECT_TRUE(window.Lavori->item(0)->text().endsWith(u"mio.tlrm"));
    QTest::keyClick(&window, Qt::Key_Escape);  // decided later
  });
  EXPECT_TRUE(NomeCruciverba.empty() && form->Picture1->isVisible());
  startWithOffer([](LavoroNonSalvato& window) { Click(window.Recupera); });
  EXPECT_EQ(Drawing(), (Rows{"CASA", ".#.."}));
  EXPECT_EQ(NomeCruciverba, InFolder("mio.tlrm"));
  EXPECT_TRUE(SchemaModificato && form->Voce("MenuEdit").isEnabled());
  EXPECT_FALSE(form->Picture1->isVisible());
  EXPECT_NE(Title().find("4x2"), std::string::npos);
  form->Voce("MenuAnnulla").trigger();
  EXPECT_EQ(Drawing(), (Rows{"CASA", "...."}));
  form->Voce("MenuRipeti").trigger();
  // Nobody saved it.
  startWithOffer([this](LavoroNonSalvato& window) {
    user.Answer(Risposta::Annulla);
    Click(window.Elimina);
    EXPECT_EQ(window.Lavori->count(), 1);
    user.Answer(Risposta::Ok);
    Click(window.Elimina);
    EXPECT_EQ(user.TakeTexts().size(), 2u);
  });
  StartAnew();
  QCoreApplication::processEvents();
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_EQ(Enabled(), "");
  EXPECT_EQ(ReadFile(InFolder("mio.tlrm")).find('*'), std::string::npos);
}

TEST_F(HistoryWindowsTest, TheTipOfTheDayComesBehindTheOffer) {
  StartWatched({"CASA"});
  Blacken(1, 1);
  machine.settings["Options/Show Tips at Startup"] = "1";
  std::vector<std::string> order;
  WhenOpen<LavoroNonSalvato>(*qApp, [&](LavoroNonSalvato& window) {
    order.push_back("offer");
    WhenOpen<frmTip>(*qApp, [&](frmTip& tip) {
      order.push_back("tip");
      Click(tip.cmdOK);
    });
    Click(window.DecidiDopo);
  });
  StartAnew();
  EXPECT_EQ(order, (std::vector<std::string>{"offer", "tip"}));
}

}  // namespace
}  // namespace telarium
