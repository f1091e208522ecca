#include "platform/qt/qt_user.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDialog>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <functional>
#include <map>

#include "platform/codepage.h"
#include "platform/qt/qt_wait.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

class UserTest : public ::testing::Test {
 protected:
  template <class Box>
  void WhenOpen(std::function<void(Box&)> act) {
    telarium::WhenOpen<Box>(context_, std::move(act));
  }

  UtenteQt user;

 private:
  QObject context_;
};

TEST_F(UserTest, BoxesHaveTheToldTitleIconAndItalianButtons) {
  struct Case {
    Pulsanti buttons;
    const char* names;
    Qt::Key key;
    Risposta answer;
  };
  for (const Case& one :
       {Case{Pulsanti::Ok, "OK ", Qt::Key_Escape, Risposta::Ok},
        Case{Pulsanti::OkAnnulla, "OK Annulla ", Qt::Key_Escape, Risposta::Annulla},
        Case{Pulsanti::SiNo, "Si No ", Qt::Key_Escape, Risposta::No},
        Case{Pulsanti::SiNoAnnulla, "Si No Annulla ", Qt::Key_Escape, Risposta::Annulla},
        Case{Pulsanti::SiNoAnnulla, "Si No Annulla ", Qt::Key_Return, Risposta::Si}}) {
    WhenOpen<QMessageBox>([&](QMessageBox& box) {
      std::map<int, QString> names;  // from left to right
      for (const auto* button : box.findChildren<QPushButton*>())
        names[button->x()] = button->objectName() + u' ';
      QString all;
      for (const auto& [left, name] : names)
        all += name;
      EXPECT_EQ(all, QLatin1StringView(one.names));
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Un titolo"));
      EXPECT_EQ(box.icon(), QMessageBox::Critical);
      EXPECT_EQ(box.text(), QStringLiteral("\u00C8 <b>cos\u00EC</b>\nSeconda\nTerza"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      QTest::keyClick(&box, one.key);
    });
    EXPECT_EQ(user.MostraMessaggio({.testo = std::string("È <b>così</b>\rSeconda\r\nTerza"_cp),
                                    .titolo = "Un titolo",
                                    .pulsanti = one.buttons,
                                    .icona = Icona::Stop}),
              one.answer);
  }
}

TEST_F(UserTest, ABoxWithoutAnIconHasEqualMarginsAroundItsText) {
  const std::string inOneLine = "Errore!";
  for (const std::string& text : {inOneLine, inOneLine + std::string(60, '\r'),
                                  std::string(40, 'x') + ' ' + std::string(400, 'x')}) {
    WhenOpen<QMessageBox>([](QMessageBox& box) {
      const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      const QRect shown = label->geometry();
      EXPECT_EQ(shown.left(), box.width() - shown.right() - 1);
      EXPECT_EQ(label->indent(), 0) << "the text begins where the label does";
      QTest::keyClick(&box, Qt::Key_Return);
    });
    user.MostraMessaggio({.testo = text});
  }
}

TEST_F(UserTest, ADeadEndHasThreeAnswers) {
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Telarium"));
    EXPECT_EQ(box.findChildren<QPushButton*>().size(), 3);
    QTest::mouseClick(box.findChild<QPushButton*>(QStringLiteral("No")), Qt::LeftButton);
  });
  EXPECT_EQ(user.ChiediVicoloCieco("Parola orizzontale 1\rVa bene ?\r"), Risposta::No);
}

TEST_F(UserTest, ABoxStaysSmallerThanTheScreenWhateverItsText) {
  for (const std::string& text : {std::string(100'000, 'x'), std::string(30'000, '\r')}) {
    WhenOpen<QMessageBox>([](QMessageBox& box) {
      EXPECT_LT(box.width(), 1000);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    user.MostraMessaggio({.testo = text});
  }
}

TEST_F(UserTest, AnInputBoxGivesItsTextOrNone) {
  WhenOpen<QDialog>([](QDialog& box) {
    auto* line = box.findChild<QLineEdit*>();
    EXPECT_EQ(line->text(), QStringLiteral("Anonimo"));
    line->setText(QStringLiteral("Nicol\u00F2"));
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(user.ChiediTesto({.richiesta = "Il tuo nome", .predefinito = "Anonimo"}),
            std::string("Nicolò"_cp));
  WhenOpen<QDialog>([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(user.ChiediTesto({.richiesta = "x"}), std::nullopt);
}

TEST_F(UserTest, TheCheckBoxOfAnInputBoxCountsWithItsAnswer) {
  Spunta tick{.testo = "Solo lo &schema", .scelta = true};
  for (const auto& [key, ticked] : {std::pair(Qt::Key_Escape, true), {Qt::Key_Return, false}}) {
    WhenOpen<QInputDialog>([key = key](QInputDialog& box) {
      auto* check = box.findChild<QCheckBox*>(QStringLiteral("Spunta"));
      ASSERT_TRUE(check && check->isVisible() && check->isChecked());
      EXPECT_GT(check->y(), box.findChild<QLineEdit*>()->y());
      EXPECT_LT(check->y(), box.findChild<QDialogButtonBox*>()->y());
      QTest::keyClick(check, Qt::Key_Space);
      QTest::keyClick(&box, key);
    });
    user.ChiediTesto({.richiesta = "x", .spunta = &tick});
    EXPECT_EQ(tick.scelta, ticked);
  }
}

TEST_F(UserTest, ALongPromptIsWrappedAndIsNoMarkup) {
  std::string words;
  for (int i = 0; i < 200; ++i)
    words += "suffisso ";
  for (const std::string& text : {std::string(2'000, 'x'), words}) {
    WhenOpen<QInputDialog>([&](QInputDialog& box) {
      EXPECT_LT(box.width(), 700);
      EXPECT_LT(box.height(), 700);
      const auto* prompt = box.findChild<QLabel*>();
      EXPECT_GE(prompt->height(), prompt->heightForWidth(prompt->width())) << "all of it shows";
      EXPECT_EQ(prompt->textFormat(), Qt::PlainText);
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    user.ChiediTesto({.richiesta = text});
  }
}

// A main window that counts what reaches it.
struct CountingWindow : QWidget {
  int clicks = 0, paints = 0;
  void mousePressEvent(QMouseEvent*) override { ++clicks; }
  void paintEvent(QPaintEvent*) override { ++paints; }
};

// A click as the window system brings it; what a test sends otherwise passes everything by.
void Click(QWidget& window) {
  const QPointF middle(window.rect().center());
  const QPointF global = window.mapToGlobal(middle);
  qt_handleMouseEvent(window.windowHandle(), middle, global, Qt::LeftButton, Qt::LeftButton,
                      QEvent::MouseButtonPress, Qt::NoModifier, 1000);
  qt_handleMouseEvent(window.windowHandle(), middle, global, Qt::NoButton, Qt::LeftButton,
                      QEvent::MouseButtonRelease, Qt::NoModifier, 1001);
}

class WaitTest : public UserTest {
 protected:
  void SetUp() override {
    user.Finestra(&window);
    window.resize(500, 400);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  static QWidget* Box() {
    QWidget* box = QApplication::activeModalWidget();
    return box && box->isVisible() ? box : nullptr;
  }
  static QString LabelOf(const QWidget& box, const char* name) {
    return box.findChild<QLabel*>(QLatin1StringView(name))->text();
  }

  CountingWindow window;
};

TEST_F(WaitTest, AShortWaitShowsNoBoxAndPaintsTheWindow) {
  AttesaQt wait(QStringLiteral("Prelievo"), &window, std::chrono::hours(1));
  window.paints = 0;
  window.update();
  QDeadlineTimer deadline(Patience);
  while (window.paints == 0 && !deadline.hasExpired())
    EXPECT_TRUE(wait.Prosegue(0));
  EXPECT_GT(window.paints, 0);
  EXPECT_FALSE(Box());
}

TEST_F(WaitTest, ALongWaitShowsABoxThatBreaksItOff) {
  const std::function<void(QWidget&)> ways[] = {
      [](QWidget& box) {
        auto* button = box.findChild<QPushButton*>(QLatin1StringView("Interrompi"));
        EXPECT_EQ(button->text(), QStringLiteral("Interrompi"));
        QTest::mouseClick(button, Qt::LeftButton);
      },
      [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); },
      [](QWidget& box) { box.close(); },
  };
  for (const auto& breakOff : ways) {
    SCOPED_TRACE(&breakOff - ways);
    const auto wait = user.IniziaAttesa("Prelievo <b>...");
    QDeadlineTimer deadline(Patience);
    while (!Box() && !deadline.hasExpired())
      EXPECT_TRUE(wait->Prosegue(1'234'567));
    QWidget* box = Box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->windowTitle(), QStringLiteral("Telarium"));
    EXPECT_EQ(LabelOf(*box, "Testo"), QStringLiteral("Prelievo <b>..."));
    EXPECT_EQ(LabelOf(*box, "Byte"), QStringLiteral("Ricevuti: 1,2 MB"));
    Click(window);
    EXPECT_TRUE(wait->Prosegue(0));
    breakOff(*box);
    EXPECT_FALSE(wait->Prosegue(0));
    EXPECT_TRUE(Box()) << "it keeps a second click from the window";
  }
  EXPECT_FALSE(Box());
  EXPECT_EQ(window.clicks, 0);
  Click(window);
  EXPECT_EQ(window.clicks, 1) << "the window is free again";
}

TEST_F(WaitTest, WorkOfKnownLengthShowsItsShare) {
  UtenteQt early;  // no window yet: the box shows at once
  const auto wait = early.IniziaAttesa("Preparazione");
  EXPECT_TRUE(wait->ProsegueFino(0.25));
  QWidget* box = Box();
  ASSERT_TRUE(box);
  const auto* bar = box->findChild<QProgressBar*>();
  EXPECT_EQ(4 * bar->value(), bar->maximum());
  EXPECT_FALSE(box->findChild<QLabel*>(QStringLiteral("Byte"))->isVisible());
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_FALSE(wait->ProsegueFino(0.5));
}

TEST_F(UserTest, ThePointerFollowsItsStateOverTheMainWindowAlone) {
  QWidget window;
  user.Finestra(&window);
  user.Immagine(99, QCursor(Qt::PointingHandCursor));
  const std::pair<int, Qt::CursorShape> shapes[] = {
      {11, Qt::WaitCursor},    {2, Qt::CrossCursor}, {7, Qt::SizeVerCursor},
      {9, Qt::SizeHorCursor},  {0, Qt::ArrowCursor}, {99, Qt::PointingHandCursor},
      {12345, Qt::ArrowCursor}};
  for (const auto& [value, shape] : shapes) {
    user.FormaPuntatore(value);
    EXPECT_EQ(window.cursor().shape(), shape) << value;
    EXPECT_FALSE(QGuiApplication::overrideCursor());
  }
}

TEST_F(UserTest, AModalWindowThatWorksHasThePointerToo) {
  QWidget window;
  user.Finestra(&window);
  user.Immagine(99, QCursor(Qt::PointingHandCursor));
  QDialog dialog(&window);
  QPushButton button(&dialog);
  WhenOpen<QDialog>([&](QDialog& open) {
    for (const auto& [value, shape] : {std::pair(11, Qt::WaitCursor),
                                       {1, Qt::ArrowCursor},
                                       {99, Qt::PointingHandCursor},
                                       {9, Qt::ArrowCursor},
                                       {11, Qt::WaitCursor}}) {
      user.FormaPuntatore(value);
      EXPECT_EQ(button.cursor().shape(), shape) << value;
    }
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    open.accept();
  });
  dialog.exec();
  user.FormaPuntatore(99);
  EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor) << "closed, it does not work";
}

TEST_F(UserTest, TheColourChooserStaysOnTheMainWindowAndGivesAColourOrNone) {
  QWidget window;
  window.setGeometry(30, 20, 780, 570);
  user.Finestra(&window);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCursor::setPos(window.geometry().bottomRight());
  for (const bool chosen : {true, false}) {
    WhenOpen<QColorDialog>([&](QColorDialog& box) {
      EXPECT_TRUE(window.geometry().contains(box.geometry())) << box.x() << ", " << box.y();
      EXPECT_EQ(box.currentColor(), QColor(0x12, 0x34, 0x56)) << "red is the low byte";
      box.setCurrentColor(QColor(1, 2, 3));
      QTest::keyClick(&box, chosen ? Qt::Key_Return : Qt::Key_Escape);
    });
    EXPECT_EQ(user.ScegliColore(0x563412), chosen ? 0x030201 : NessunColore);
  }
}

}  // namespace
}  // namespace telarium
