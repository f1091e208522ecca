#include <filesystem>

#include "auxiliary/addresses.h"
#include "auxiliary/windows/Form3.h"
#include "auxiliary/windows/frmTip.h"
#include "editor/windows/form1_fixture.h"

// The small windows of the Help menu, by themselves and as the main window opens them.
namespace telarium {
namespace {

constexpr const char* TipSetting = "Options/Show Tips at Startup";

class AuxiliaryWindowsTest : public Form1Test {
 protected:
  void SetUp() override {
    Form1Test::SetUp();
    WriteFile("TLRMTIPS.TXT", "Primo\r\nSecondo & <b>pi\xF9</b>\r\n");
  }
};

TEST_F(AuxiliaryWindowsTest, TheTipWindowShowsOneTipAfterTheOther) {
  machine.draws = {0.0, 0.9, 0.9};
  frmTip window(nullptr);
  Open(window);
  ExpectNamedControls(window);
  QTest::keyClicks(window.lblTipText, QStringLiteral("x"));
  EXPECT_EQ(window.lblTipText->toPlainText(), QStringLiteral("Primo"));
  EXPECT_EQ(TabOrder(window), "cmdOK cmdNextTip lblTipText chkLoadTipsAtStartup ");
  Click(window.cmdNextTip);
  EXPECT_EQ(window.lblTipText->toPlainText(), QStringLiteral("Secondo & <b>più</b>"));
  Click(window.cmdNextTip);
  EXPECT_EQ(window.lblTipText->toPlainText(), QStringLiteral("Secondo & <b>più</b>"));
  EXPECT_TRUE(window.chkLoadTipsAtStartup->isChecked());
  machine.settings.clear();
  Click(window.chkLoadTipsAtStartup);
  EXPECT_EQ(machine.settings[TipSetting], "0") << "saved at once";
  QTest::keyClick(window.chkLoadTipsAtStartup, Qt::Key_Space);
  EXPECT_EQ(machine.settings[TipSetting], "1");
  Click(window.cmdOK);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(AuxiliaryWindowsTest, ATipOfAnyLengthLeavesTheWindowItsSize) {
  QSize size;
  for (const std::string& tips : {std::string("Breve"), std::string(200'000, 'x'),
                                  std::string(200'000, '\0'), std::string(100'000, '\n')}) {
    WriteFile("TLRMTIPS.TXT", tips);
    frmTip window(nullptr);
    Open(window);
    if (size.isEmpty()) size = window.size();
    EXPECT_EQ(window.size(), size);
  }
}

TEST_F(AuxiliaryWindowsTest, TheStartShowsATipOverTheCrosswordAndLetsOthersWait) {
  const Percorso other = CrosswordFile({"SOLE"});
  std::filesystem::rename(other, InFolder("altro.tlrm"));
  const Percorso mine = CrosswordFile({"CASA"});
  machine.settings.clear();
  QObject context;
  WhenOpen<frmTip>(context, [&](frmTip& window) {
    EXPECT_EQ(NomeCruciverba, mine);
    EXPECT_EQ(Drawing(), std::vector<std::string>{"CASA"});
    const int side = LatoCasella;
    Resize(500, 400);
    EXPECT_NE(LatoCasella, side) << "the grid follows the window";
    form->RiceviDaFuori(InFolder("altro.tlrm"));
    EXPECT_EQ(NomeCruciverba, mine);
    Click(window.chkLoadTipsAtStartup, window.cmdOK);
  });
  Start(mine);
  EXPECT_TRUE(QTest::qWaitFor([] { return Drawing() == std::vector<std::string>{"SOLE"}; }));
  form->Voce("Menusugg").trigger();  // no tip is wanted any more
}

TEST_F(AuxiliaryWindowsTest, TheInformationWindowLeadsToTheConfiguredPages) {
  WriteFile("indirizzi.txt",
            "PaginaDizionario=dizionario.example/&\nPaginaAmici=amici.example/?a=b\n");
  StartWith({"CASA"});
  const auto visit = [&](Form3& window) {
    ExpectNamedControls(window);
    EXPECT_EQ(window.Label4->text(), QStringLiteral("Telarium - Versione  7. 0. 1"));
    EXPECT_EQ(window.Label10->text(), QStringLiteral("dizionario.example/&"));
    for (const QLabel* picture : {window.Picture5, window.Picture7})
      EXPECT_GT(picture->width(), 32) << picture->objectName().toStdString();
    EXPECT_EQ(TabOrder(window), "Command3d1 Label10 Label8 Picture5 Picture7 Command1 ");
    Click(window.Label10, window.Label8, window.Picture5, window.Picture7);
    machine.program = "kinfocenter";
    Click(window.Command1, window.Command3d1);
  };
  ModoGriglia = ModoAnteprima;
  PrendiStrumento(Strumento::CasellaNera);
  WhenOpen<Form3>(*form, visit);
  Click(form->StatusBar1);
  EXPECT_EQ(ModoGriglia, ModoModifica) << "the preview is left";
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
  EXPECT_EQ(machine.opened, (std::vector<std::string>{
                                "https://dizionario.example/&", "mailto:autore@telarium.example",
                                "https://www.telarium.example", "https://amici.example/?a=b"}));
  EXPECT_EQ(machine.tried, std::vector<std::string>{"kinfocenter"});
}

TEST_F(AuxiliaryWindowsTest, TheMailCommandsRunFromTheMenu) {
  StartWith({"CASA"});
  form->Voce("mandaschema").trigger();
  user.AnswerText("Io");
  user.AnswerText("x");
  form->Voce("menuconsiglia").trigger();
  EXPECT_EQ(user.TakeTexts().size(), 2u);
  EXPECT_EQ(machine.mails.size(), 1u);
}

}  // namespace
}  // namespace telarium
