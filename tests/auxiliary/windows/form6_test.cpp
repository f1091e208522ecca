#include "auxiliary/windows/Form6.h"

#include "auxiliary/addresses.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

using Form6Test = TelariumTest;

TEST_F(Form6Test, LeadsToTheConfiguredPage) {
  WriteFile("indirizzi.txt",
            "PaginaAccessoDati=dati.example/&\nScaricoAccessoDati=scarico.example\n");
  LeggiIndirizzi();
  Form6 window(nullptr);
  Open(window);
  ExpectNamedControls(window);
  EXPECT_EQ(window.Label2->text(), QStringLiteral("dati.example/&"));
  EXPECT_FALSE(window.Label2->cursor().pixmap().isNull()) << "the hand is a picture";
  EXPECT_TRUE(window.Label1->text().endsWith(QStringLiteral("ai dati di Microsoft.")));
  EXPECT_EQ(TabOrder(window), "Command1 Label2 ");
  QTest::mouseClick(window.Label2, Qt::RightButton);
  QTest::mousePress(window.Label2, Qt::LeftButton);  // and let go beside it
  QTest::mouseRelease(window.Label2, Qt::LeftButton, {}, QPoint(-5, -5));
  QTest::mouseClick(window.Label2, Qt::LeftButton);
  window.Label2->setFocus();
  QTest::keyClick(window.Label2, Qt::Key_A);  // which is none of a link's keys
  QTest::keyClick(window.Label2, Qt::Key_Return);
  EXPECT_EQ(machine.opened, std::vector<std::string>(2, "https://scarico.example"));
  EXPECT_TRUE(window.isVisible());
  machine.opens = false;
  QTest::keyClick(window.Label2, Qt::Key_Space);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  QTest::mouseClick(window.Command1, Qt::LeftButton);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace telarium
