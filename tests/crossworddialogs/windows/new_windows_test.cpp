#include "crossworddialogs/windows/FormModels.h"
#include "crossworddialogs/windows/FormNew.h"
#include "model/state.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class NewWindows : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    WriteFile("Standard.DFC", "*..\r\n.A.\r\n...\r\n-\r\n....\r\n....\r\n-\r\n");
    WriteFile("altri.dfc", "......\r\n......\r\n-\r\n" + std::string(60, '.') + "\r\n-\r\n");
  }
};

TEST_F(NewWindows, TheSizeIsTakenByEnterAndAWrongOneKeepsTheWindow) {
  FormNew window(nullptr);
  Open(window);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Telarium - Nuovo cruciverba"));
  EXPECT_EQ(window.Text1->selectedText(), QStringLiteral("16"));
  QTest::keyClicks(window.Text1, QStringLiteral("54"));
  QTest::keyClick(window.Text1, Qt::Key_Return);
  EXPECT_EQ(user.TakeTexts(), Texts{"Numero caselle orizzontali consentito da 3 a 53."});
  EXPECT_EQ(window.focusWidget(), window.Text1);
  EXPECT_EQ(window.Text1->selectedText(), QStringLiteral("54")) << "what is typed next replaces it";
  window.Text1->setText(QStringLiteral(" 7 caselle"));
  window.Text2->setText(QStringLiteral("tre"));
  QTest::keyClick(window.Text1, Qt::Key_Return);
  EXPECT_EQ(user.TakeTexts(), Texts{"Numero caselle verticali consentito da 3 a 30."});
  EXPECT_EQ(window.focusWidget(), window.Text2);
  EXPECT_EQ(window.Text2->selectedText(), QStringLiteral("tre"));
  EXPECT_EQ(user.beeps, 2);
  EXPECT_TRUE(window.isVisible());
  window.Text2->setText(QStringLiteral("4"));
  QTest::keyClick(window.Text2, Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(Schema(4), "Dimensioni : 07x04");
  EXPECT_EQ(NomeCruciverba, "NuovoCruciverba.tlrm");
}

TEST_F(NewWindows, AModelIsPickedByItsPictureItsNameOrAKey) {
  for (const int way : {0, 1, 2}) {
    FormNew window(nullptr);
    Open(window);
    EXPECT_EQ(window.NomeModelli(), "STANDARD.dfc");
    EXPECT_EQ(window.File1->Scelto(), Percorso("Standard.DFC"));
    EXPECT_EQ(window.Label3[1]->text(), QStringLiteral("Telar 4x2"));
    EXPECT_EQ(window.Label3[2]->text(), QString());
    QTest::mouseClick(window.Picture1[2], Qt::LeftButton);
    QTest::mouseClick(window.Label3[2], Qt::LeftButton);
    QTest::mouseClick(window.Picture1[0], Qt::RightButton);
    QTest::keyClick(window.Picture1[0], Qt::Key_A);
    EXPECT_TRUE(window.isVisible()) << "an empty place, another button, another key";
    if (way == 0) QTest::mouseClick(window.Picture1[0], Qt::LeftButton);
    if (way == 1) QTest::mouseClick(window.Label3[0], Qt::LeftButton);
    if (way == 2) QTest::keyClick(window.Picture1[0], Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Schema(5) + Schema(6), "**......AA..");
    Forget();
    CartellaProgramma = InFolder("");
  }
}

TEST_F(NewWindows, AnotherModelFileShowsItsModels) {
  FormNew window(nullptr);
  Open(window);
  window.File1->Scegli("altri.dfc");
  EXPECT_EQ(window.NomeModelli(), "altri.dfc");
  EXPECT_EQ(window.Label3[0]->text(), QStringLiteral("Telar 6x2"));
  EXPECT_EQ(window.Label3[1]->text(), QStringLiteral("Telar 60x1"));
  const QPoint place = window.Picture1[1]->pos();
  QTest::mouseClick(window.Picture1[1], Qt::LeftButton);
  EXPECT_EQ(user.TakeTexts(),
            Texts{"Il modello supera le dimensioni massime di 53 colonne e 30 righe."});
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.Picture1[1]->pos(), place) << "no longer pressed";
  EXPECT_EQ(NomeCruciverba, Percorso());
}

TEST_F(NewWindows, WithoutAModelFileTheSizeStillWorks) {
  std::filesystem::remove(InFolder("Standard.DFC"));
  FormNew window(nullptr);
  Open(window);
  EXPECT_EQ(
      user.TakeTexts().at(0).find("Errore: Non trovato file di definizione modelli standard!\n" +
                                  InFolder("").string()),
      0u);
  QTest::mouseClick(window.Command3d1, Qt::LeftButton);
  EXPECT_EQ(Schema(4), "Dimensioni : 16x13");
}

TEST_F(NewWindows, EscapeAndTheCloseBoxLeaveAllAsItWas) {
  Draw({"CASA"});
  FormNew first(nullptr);
  Open(first);
  QTest::keyClick(first.Text1, Qt::Key_Escape);
  FormNew second(nullptr);
  Open(second);
  second.close();
  EXPECT_FALSE(first.isVisible() || second.isVisible());
  EXPECT_EQ(DrawingOfSchema(), Texts{"CASA"});
}

TEST_F(NewWindows, TheKeyboardGoesThroughTheSizeTheButtonsAndTheModels) {
  FormNew window(nullptr);
  Open(window);
  EXPECT_EQ(TabOrder(window), "Text1 Text2 Command3d1 Command3d2 Picture1_0 Picture1_1 File1 ");
  ExpectNamedControls(window);
}

TEST_F(NewWindows, TheWindowOfTheModelsBeginsAFixedGridOrAModel) {
  FormModels window(nullptr);
  Open(window);
  EXPECT_EQ(window.Label5->text(), QStringLiteral("Modificare e salvare gli schemi di modello"));
  EXPECT_TRUE(window.Picture1[1]->isEnabled());
  QTest::keyClick(window.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Schema(4), "Dimensioni : 26x15");
  Open(window);
  QTest::mouseClick(window.Picture1[1], Qt::LeftButton);
  EXPECT_EQ(Schema(4), "Dimensioni : 04x02");
  ExpectNamedControls(window);
}

}  // namespace
}  // namespace telarium
