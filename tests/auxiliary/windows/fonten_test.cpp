#include "auxiliary/windows/fONTEN.h"

#include <QTest>

#include "editor/settings.h"
#include "editor/windows/modal_windows.h"
#include "platform/qt/qt_text.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

const QString Sans = QStringLiteral("Liberation Sans");
const QString Serif = QStringLiteral("Liberation Serif");

class FontenTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    main_ = std::make_unique<QWidget>();
  }

  // Opens the window as the command does, and does this to it.
  void Open(const std::function<void(fONTEN&)>& act) {
    WhenOpen<fONTEN>(*main_, act);
    MostraFinestraModale(Modale::fONTEN, *main_);
  }

  static QString Selected(const fONTEN& window) {
    const auto selected = window.LstFonts->selectedItems();
    return selected.isEmpty() ? QString() : selected.front()->text();
  }
  static QPoint PlaceOf(fONTEN& window, const QString& name) {
    QListWidgetItem* item = window.LstFonts->findItems(name, Qt::MatchExactly).value(0);
    window.LstFonts->scrollToItem(item);
    return window.LstFonts->visualItemRect(item).center();
  }
  static void Pick(fONTEN& window, const QString& name) {
    const QPoint place = PlaceOf(window, name);
    QTest::mouseClick(window.LstFonts->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }
  static void Click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }

  std::unique_ptr<QWidget> main_;
};

TEST_F(FontenTest, ShowsAndTakesTheChosenTypeface) {
  NomeFont = "Liberation Serif";
  Open([](fONTEN& window) {
    EXPECT_EQ(Selected(window), Serif);
    EXPECT_EQ(window.Frame3->title(),
              QStringLiteral("N. %1 Fonts installati").arg(window.LstFonts->count()));
    EXPECT_GT(window.LstFonts->count(), 2);
    Pick(window, Sans);
    EXPECT_EQ(window.TxtFontPreview->text(), Sans + QStringLiteral(" - aAbB 123 zZ"));
    Click(window.Check3d1);
    const QFont sample = window.TxtFontPreview->font();
    EXPECT_EQ(sample.family(), Sans);
    EXPECT_EQ(sample.pointSize(), 20);
    EXPECT_TRUE(sample.italic() && !sample.bold());
    EXPECT_EQ(NomeFont, "Liberation Serif") << "not before OK";
    Click(window.cmdOK);
  });
  EXPECT_EQ(NomeFont, "Liberation Sans");
  EXPECT_EQ(platform.printer.typeface, "Liberation Sans");
  EXPECT_TRUE(platform.window.Corsivo() && !platform.window.Grassetto());
}

TEST_F(FontenTest, OkWithoutATickTurnsItalicAndBoldOff) {
  platform.window.Corsivo(true);
  platform.window.Grassetto(true);
  Open([](fONTEN& window) {
    EXPECT_FALSE(window.Check3d1->isChecked() || window.Check3d2->isChecked());
    Pick(window, Serif);
    Click(window.cmdOK);
  });
  EXPECT_FALSE(platform.window.Corsivo() || platform.window.Grassetto());
}

TEST_F(FontenTest, EnterAndADoubleClickInTheListAreOk) {
  Open([](fONTEN& window) {
    Pick(window, Serif);
    QTest::keyClick(window.LstFonts, Qt::Key_Return);
  });
  EXPECT_EQ(NomeFont, "Liberation Serif");
  Open([](fONTEN& window) {
    const QPoint place = PlaceOf(window, Sans);
    QTest::mouseClick(window.LstFonts->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(window.LstFonts->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  });
  EXPECT_EQ(NomeFont, "Liberation Sans");
}

TEST_F(FontenTest, KeepsItsBoxesButNotAnUnconfirmedChoice) {
  NomeFont = "Liberation Serif";
  platform.window.Grassetto(true);
  Open([](fONTEN& window) {
    Pick(window, Sans);
    Click(window.Check3d2);
    Click(window.cmdCancel);
  });
  EXPECT_EQ(NomeFont, "Liberation Serif");
  EXPECT_EQ(platform.printer.typeface, "");
  Open([](fONTEN& window) {
    EXPECT_EQ(Selected(window), Serif);
    EXPECT_TRUE(window.Check3d2->isChecked());
    EXPECT_TRUE(window.TxtFontPreview->font().bold());
    Click(window.cmdOK);
  });
  EXPECT_TRUE(platform.printer.bold);
  Open([](fONTEN& window) {
    Click(window.Check3d2);
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  EXPECT_TRUE(platform.window.Grassetto()) << "Esc is Cancel";
}

TEST_F(FontenTest, ATypefaceThatIsGoneSelectsNothingAndOkChangesNothing) {
  NomeFont = "liberation sans";  // not exactly a name of the list
  platform.window.Corsivo(true);
  Open([](fONTEN& window) {
    EXPECT_EQ(Selected(window), QString());
    Click(window.Check3d2);
    EXPECT_TRUE(window.TxtFontPreview->font().bold());
    EXPECT_EQ(window.TxtFontPreview->text(), QString());
    QTest::keyClick(window.LstFonts, Qt::Key_Return);
  });
  EXPECT_EQ(NomeFont, "liberation sans");
  EXPECT_TRUE(platform.window.Corsivo() && !platform.window.Grassetto());
}

TEST_F(FontenTest, ControlsHaveTheirNamesAndOrder) {
  Open([](fONTEN& window) {
    ExpectNamedControls(window);
    EXPECT_EQ(TabOrder(window), "LstFonts Check3d1 Check3d2 cmdOK cmdCancel ");
    EXPECT_TRUE(window.TxtFontPreview->isReadOnly());
    const int before = window.LstFonts->height();
    window.resize(window.width(), window.height() + 200);
    QTest::qWait(0);
    EXPECT_GT(window.LstFonts->height(), before);
    window.close();
  });
}

}  // namespace
}  // namespace telarium
