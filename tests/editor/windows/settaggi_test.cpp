#include "editor/windows/Settaggi.h"

#include <QTest>

#include "editor/settings.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

using Values = std::array<int, 6>;  // in the order of the bars

class SettaggiTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    ImpostazioniIniziali();
  }

  void Open() {
    window = std::make_unique<Settaggi>(nullptr);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  Values Bars() const {
    return {window->HScroll1->value(), window->HScroll2->value(), window->HScroll3->value(),
            window->HScroll4->value(), window->HScroll5->value(), window->HScroll6->value()};
  }
  static Values Settings() {
    return {PercentualeRiquadro, AltezzaNumeri,    AltezzaCaratteri,
            DistanzaDaSpigolo,   DistanzaDaCentro, SpessoreBordo};
  }
  static void Set(const Values& values) {
    std::int16_t* const settings[] = {&PercentualeRiquadro, &AltezzaNumeri,    &AltezzaCaratteri,
                                      &DistanzaDaSpigolo,   &DistanzaDaCentro, &SpessoreBordo};
    for (std::size_t i = 0; i < values.size(); ++i)
      *settings[i] = static_cast<std::int16_t>(values[i]);
  }

  std::unique_ptr<Settaggi> window;
};

TEST_F(SettaggiTest, BringsEverySettingOntoItsBar) {
  struct Case {
    Values settings, shown;
  };
  for (const Case& one : {
           Case{{90, 18, 52, 3, -4, 2}, {90, 18, 52, 3, -4, 2}},
           Case{{0, 0, 0, 0, 0, 0}, {95, 5, 25, 0, 0, 1}},  // a file without them
           Case{{49, 4, 24, -1, -11, -7}, {95, 5, 25, 0, -10, 1}},
           Case{{50, 5, 25, 0, -10, 1}, {50, 5, 25, 0, -10, 1}},
           Case{{101, 26, 91, 16, 21, 6}, {100, 25, 90, 15, 20, 5}},
       }) {
    Set(one.settings);
    Open();
    EXPECT_EQ(Bars(), one.shown);
    EXPECT_EQ(window->Label2->text(), QString::number(one.shown[0]));
    EXPECT_EQ(window->Label15->text(), QString::number(one.shown[4]));
    QTest::mouseClick(window->Command1, Qt::LeftButton);
    EXPECT_EQ(Settings(), one.shown);
  }
}

TEST_F(SettaggiTest, MovesByKeysAndTrackAndWritesTheFileBySaving) {
  Open();
  QTest::keyClick(window->HScroll5, Qt::Key_Home);
  QTest::keyClick(window->HScroll2, Qt::Key_Right);
  QTest::keyClick(window->HScroll6, Qt::Key_PageDown);
  QScrollBar* bar = window->HScroll4;
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                    QPoint(bar->width() - 30, bar->height() / 2));
  EXPECT_EQ(Bars(), (Values{95, 19, 52, 8, -10, 1}));
  EXPECT_EQ(window->Label11->text(), QStringLiteral("8"));
  EXPECT_EQ(Settings(), (Values{95, 18, 52, 3, 6, 2})) << "not before it is saved";
  QTest::keyClick(window.get(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));  // a click takes a while
  EXPECT_EQ(Settings(), (Values{95, 19, 52, 8, -10, 1}));
  Set({});
  EXPECT_EQ(LeggiImpostazioni(), EsitoImpostazioni::Lette);
  EXPECT_EQ(Settings(), (Values{95, 19, 52, 8, -10, 1}));
}

TEST_F(SettaggiTest, LeavesTheSettingsByEveryWayOfCancelling) {
  const std::function<void()> ways[] = {
      [this] { QTest::mouseClick(window->Command2, Qt::LeftButton); },
      [this] { QTest::keyClick(window->HScroll3, Qt::Key_Escape); },
      [this] { window->close(); },
  };
  for (const auto& leave : ways) {
    Open();
    for (QScrollBar* bar : window->findChildren<QScrollBar*>())
      QTest::keyClick(bar, Qt::Key_End);
    leave();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Settings(), (Values{95, 18, 52, 3, 6, 2}));
    EXPECT_EQ(LeggiImpostazioni(), EsitoImpostazioni::Assenti);
  }
}

TEST_F(SettaggiTest, TheSampleFollowsTheBarsAtOnce) {
  NomeFont = "Liberation Serif";
  Open();
  const CampioneSchema& sample = *window->Campione;
  const int side = sample.Shape1[1]->x() - sample.Shape1[0]->x();
  const auto middle = [](const QWidget* control) { return control->geometry().center(); };
  window->HScroll1->setValue(100);
  EXPECT_EQ(sample.Shape10->geometry(), sample.Shape8->geometry());
  window->HScroll1->setValue(50);
  EXPECT_NEAR(sample.Shape11->width(), side / 2, 2);
  EXPECT_TRUE(sample.Shape7->geometry().contains(sample.Shape11->geometry()));

  for (const int letters : {25, 90}) {
    window->HScroll3->setValue(letters);
    window->HScroll5->setValue(0);
    EXPECT_EQ(sample.Label1[0]->font().family(), QStringLiteral("Liberation Serif"));
    // In points a percent of the side in pixels; a point is 4/3 pixels.
    EXPECT_NEAR(QFontInfo(sample.Label1[0]->font()).pixelSize(), letters * side / 75.0, 1);
    EXPECT_NEAR(middle(sample.Label1[4]).y(), middle(sample.Shape1[4]).y(), 1);
    EXPECT_NEAR(middle(sample.Label1[4]).x(), middle(sample.Shape1[4]).x(), 1);
  }
  window->HScroll5->setValue(-10);
  EXPECT_NEAR(middle(sample.Label1[2]).y(), middle(sample.Shape1[2]).y() - side / 10, 1);
  window->HScroll4->setValue(10);
  window->HScroll2->setValue(25);
  const QPoint corner = sample.Label3[3]->pos() - sample.Shape1[3]->pos();
  EXPECT_NEAR(corner.x(), side / 10.0, 1);
  EXPECT_EQ(corner.x(), corner.y());
  EXPECT_NEAR(QFontInfo(sample.Label3[3]->font()).pixelSize(), side / 3.0, 1);
  for (const int lines : {5, 1}) {
    window->HScroll6->setValue(lines);
    EXPECT_EQ(sample.Line5->height(), lines);
    EXPECT_EQ(sample.Line6->width(), lines);
  }
}

TEST_F(SettaggiTest, NothingIsCutOffWhateverTheBars) {
  Open();
  for (const bool most : {false, true}) {
    for (QScrollBar* bar : window->findChildren<QScrollBar*>())
      bar->setValue(most ? bar->maximum() : bar->minimum());
    for (const QLabel* label : window->findChildren<QLabel*>()) {
      if (label->wordWrap()) continue;
      EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
      EXPECT_TRUE(label->parentWidget()->rect().intersects(label->geometry()));
    }
    for (const QLabel* letter : window->Campione->Label1)
      EXPECT_TRUE(window->Campione->rect().contains(CampioneSchema::Inchiostro(*letter)));
  }
}

TEST_F(SettaggiTest, ControlsHaveTheirNamesAndOrder) {
  Open();
  ExpectNamedControls(*window);
  EXPECT_EQ(window->Campione->findChildren<QLabel*>().size(), 10) << "a letter and a number a cell";
  EXPECT_EQ(TabOrder(*window),
            "HScroll1 HScroll2 HScroll3 HScroll4 HScroll5 HScroll6 Command1 Command2 ");
  window->HScroll2->setFocus();
  const QLabel& value = *window->Label9;
  EXPECT_EQ(value.backgroundRole(), QPalette::Highlight) << "a bar shows no focus by itself";
  window->HScroll3->setFocus();
  EXPECT_NE(value.backgroundRole(), QPalette::Highlight);
}

}  // namespace
}  // namespace telarium
