#include "clues/windows/TelarBro.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QScrollBar>

#include "editor/settings.h"
#include "model/crossword_file.h"
#include "platform/qt/qt_text.h"
#include "support/clue_store.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class TelarBroTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    ImpostazioniIniziali();
    Draw({"CASA", "A#LE", "SOLE"});
    SetClue(1, 1, Orizzontale, "Ci si abita");
    ASSERT_TRUE(ScriviIstantanea());
  }

  void Show() {
    window = std::make_unique<TelarBro>(nullptr);
    Open(*window);
  }

  std::string Cell(int row, int column) const {
    return DaQt(window->Gitter1->item(row, column)->text());
  }
  // The rows, as "12-O WORD clue".
  Texts Rows() const {
    Texts rows;
    for (int row = 0; row < window->Gitter1->rowCount(); ++row)
      rows.push_back(Cell(row, 0) + ' ' + Cell(row, 1) + ' ' + Cell(row, 2));
    return rows;
  }

  // A clue of the draft.
  std::string Clue(int column, int row, int direction) const {
    return window->Bozza().Valore().definizioni(column, row, direction);
  }

  void DoubleClick(int row, int column) { DoubleClickItem(*window->Gitter1, row, column); }
  // Types a word into a row, and a clue, and confirms them.
  void Change(int row, const char16_t* word, const char16_t* clue = nullptr) {
    DoubleClick(row, 1);
    Type(window->Text1, word);
    if (clue) Type(window->Text2, clue);
    QTest::keyClick(clue ? window->Text2 : window->Text1, Qt::Key_Return);
  }
  void Press(Qt::Key key) { QTest::keyClick(window->Gitter1, key); }
  bool Editing() const {
    const bool shown = window->Text1->isVisible();
    for (const QWidget* control :
         std::initializer_list<QWidget*>{window->Text2, window->Command1, window->Command2})
      EXPECT_EQ(control->isVisible(), shown);
    return shown;
  }
  // Types a text, accents too, over what a box holds.
  static void Type(QLineEdit* box, const char16_t* text) {
    box->selectAll();
    for (const QChar letter : QString::fromUtf16(text)) {
      QKeyEvent key(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
      QCoreApplication::sendEvent(box, &key);
    }
  }

  // The captions of the popup, which closes.
  std::string Popup() const {
    // A click by a key takes a while.
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->Menudef->isVisible(); }, Patience));
    std::string captions;
    for (const QAction* entry : window->Menudef->actions())
      captions += AUtf8(DaQt(entry->text())) + (entry->isEnabled() ? "|" : " (greyed)|");
    window->Menudef->close();
    return captions;
  }

  std::unique_ptr<TelarBro> window;
};

const Texts FirstRows = {
    "1-O CASA Ci si abita", "1-V CAS ", "2-V SLL ", "3-V AEE ", "4-O LE ", "5-O SOLE "};

TEST_F(TelarBroTest, ListsTheWordsOverTheWholeScreen) {
  SetName("[*].tlrm");
  Show();
  EXPECT_EQ(Rows(), FirstRows);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Telarium - Cruciverba 4x3  [*][*].tlrm"));
  EXPECT_EQ(window->frameGeometry(), window->screen()->availableGeometry());
  EXPECT_EQ(window->Label3->text(), QStringLiteral("0 - Orizzontale"));
  EXPECT_FALSE(Editing());
  const QHeaderView& header = *window->Gitter1->horizontalHeader();
  const int width = window->Gitter1->viewport()->width();
  EXPECT_NEAR(header.sectionSize(1), width / 3, 1);
  EXPECT_LE(header.length(), width);
  EXPECT_TRUE(window->Picture1->geometry().intersected(window->Gitter1->geometry()).isEmpty());
  ExpectNamedControls(*window);
  EXPECT_EQ(TabOrder(*window), "Gitter1 Command3d1 Command3d2 ");
  DoubleClick(1, 1);
  EXPECT_EQ(TabOrder(*window), "Text1 Text2 Command1 Command2 Command3d1 Command3d2 Gitter1 ");
}

TEST_F(TelarBroTest, TheFirstWordMayBeAVerticalOne) {
  Draw({"C#SI#", "A####", "SOLE#"});
  Show();
  EXPECT_EQ(Rows(), (Texts{"1-V CAS ", "2-O SI ", "3-O SOLE "}));
}

TEST_F(TelarBroTest, EveryWayOpensTheRowInBoxesOverIt) {
  Show();
  const std::function<void()> ways[] = {
      [this] { DoubleClick(4, 2); },
      [this] { DoubleClick(4, 0); },
      [this] { ClickItem(*window->Gitter1, 4, 0), Press(Qt::Key_Return); },
      [this] { ClickItem(*window->Gitter1, 4, 2), Press(Qt::Key_F2); },
  };
  for (const auto& open : ways) {
    open();
    ASSERT_TRUE(Editing());
    EXPECT_EQ(window->focusWidget(), window->Text1);
    EXPECT_EQ(window->Text1->selectedText(), QStringLiteral("LE"));
    EXPECT_EQ(window->Label3->text(), QStringLiteral("4-Orizzontale"));
    const QRect cell = window->Gitter1->visualRect(window->Gitter1->model()->index(4, 1));
    EXPECT_EQ(window->Text1->mapToGlobal(QPoint()),
              window->Gitter1->viewport()->mapToGlobal(cell.topLeft()));
    EXPECT_EQ(window->Text1->size(), cell.size());
    EXPECT_EQ(window->Text2->x(), window->Text1->geometry().right() + 2);
    EXPECT_EQ(window->Text2->width(), cell.width() * 5 / 3 - 16);
    EXPECT_EQ(window->Command1->geometry().bottom() + 1, window->Text1->y());
    EXPECT_GE(window->Text1->height(), window->Text1->sizeHint().height()) << "nothing is cut off";
    Press(Qt::Key_Down);
    EXPECT_FALSE(Editing()) << "a key in the table";
  }
}

TEST_F(TelarBroTest, ClicksKeysAndScrollingHideTheBoxes) {
  Draw(std::vector<std::string>(30, std::string(53, '.')));
  Show();
  QTableWidget& table = *window->Gitter1;
  const std::function<void()> ways[] = {
      [&] { QTest::mouseClick(table.viewport(), Qt::LeftButton); },
      [&] { table.verticalScrollBar()->setValue(20); },
      [&] { Press(Qt::Key_X); },
      [&] { Press(Qt::Key_Escape); },
  };
  for (const auto& hide : ways) {
    DoubleClick(table.verticalScrollBar()->value() + 2, 1);
    ASSERT_TRUE(Editing());
    hide();
    EXPECT_FALSE(Editing());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->focusWidget(), &table);
  }
}

TEST_F(TelarBroTest, AWordIsTypedInCapitalsAndItsCrossingsFollow) {
  Show();
  Change(0, u"c1o- .\u00E8ix", u"Cos\u00EC");  // four letters, nothing but those
  EXPECT_FALSE(Editing());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Rows(), (Texts{"1-O CO.I Cos\xEC", "1-V CAS ", "2-V .LL ", "3-V IEE ", "4-O LE ",
                           "5-O SOLE "}));
  EXPECT_EQ(window->Gitter1->currentRow(), 0);
}

TEST_F(TelarBroTest, ARefusedWordStaysInEditing) {
  Show();
  DoubleClick(0, 1);
  Type(window->Text1, u"cas");
  Click(window->Command1);
  EXPECT_TRUE(Editing());
  EXPECT_EQ(window->focusWidget(), window->Text1);
  window->Text1->setText(QStringLiteral("ca\u00E0a"));  // as by pasting
  QTest::keyClick(window->Text1, Qt::Key_Enter);
  EXPECT_TRUE(Editing());
  QTest::keyClick(window->Text2, Qt::Key_Return);
  EXPECT_FALSE(Editing()) << "from the clue they hide whatever the result";
  DoubleClick(1, 1);
  EXPECT_EQ(window->Text1->text() + u'|' + window->Text2->text(), QStringLiteral("CAS|"));
  EXPECT_EQ(user.TakeTexts().size(), 3u);

  window->Text2->setText(QStringLiteral("Citt\u0103"));  // no such letter in the code page
  QTest::keyClick(window->Text2, Qt::Key_Return);
  EXPECT_TRUE(Editing());
  Click(window->Command1);
  EXPECT_TRUE(Editing());
  EXPECT_EQ(user.TakeTexts().size(), 2u);
  EXPECT_EQ(Rows(), FirstRows);
}

TEST_F(TelarBroTest, ALongClueStaysWholeUntilItIsTouched) {
  const std::string longer = "Una riga e " + std::string(5000, 'x') + " & \t\x81";
  SetClue(1, 1, Orizzontale, longer);
  Show();
  EXPECT_EQ(Cell(0, 2).substr(0, 12), "Una riga e x");
  Change(0, u"cose");
  EXPECT_EQ(Clue(1, 1, Orizzontale), longer);
  EXPECT_EQ(Cell(0, 1), "COSE");
  Change(1, u"cas", std::u16string(70, u'a').c_str());
  EXPECT_EQ(Clue(1, 1, Verticale), std::string(60, 'a'));
}

TEST_F(TelarBroTest, EachSearchShowsItsOwnClues) {
  MakeStore("CASA\tF\tCi si abita\nCASA\tF\tHa (forse) un tetto & muri\nCASA\tD\tDimora\n");
  {
    const EnciclopediaAperta store = ApriEnciclopedia();
    store->InserisciRiga({.parola = "SOLE", .facili = "Astro\tdel d\xEC", .difficili = "\r\n"});
    store->InserisciRiga({.parola = "CAS", .facili = {}, .difficili = {}});
    std::string hundred;
    for (int n = 1; n <= 100; ++n)
      hundred += std::to_string(n) + "\r\n";
    store->InserisciRiga({.parola = "LE", .facili = hundred, .difficili = "Articolo"});
  }
  Show();
  DoubleClick(5, 1);
  Click(window->Command2);
  EXPECT_EQ(Popup(), "01-(Facile) Astro del d\u00EC|");
  DoubleClick(0, 1);
  Click(window->Command2);
  EXPECT_EQ(Popup(),
            "01-(Facile) Ci si abita|02-(Facile) Ha (forse) un tetto && muri|03-(Diffic) Dimora|");
  window->Menud1.at(1)->trigger();
  EXPECT_EQ(window->Text2->text(), QStringLiteral("Ha (forse) un tetto & muri"));
  EXPECT_EQ(Clue(1, 1, Orizzontale), "Ci si abita") << "not before the row is confirmed";
  DoubleClick(4, 1);
  Click(window->Command2);
  EXPECT_TRUE(Popup().ends_with("99-(Facile) 99|100-(Facile) 100|101-(Diffic) Articolo|"));
  window->Menud1.back()->trigger();
  EXPECT_EQ(window->Text2->text(), QStringLiteral("Articolo"));
  DoubleClick(1, 1);
  QTest::keyClick(window.get(), Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(Popup(), "Nessuna definizione (greyed)|");
  Type(window->Text1, u"C.S");
  Click(window->Command2);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  EXPECT_TRUE(Editing());
}

TEST_F(TelarBroTest, OkHandsTheCrosswordOnThroughTheSnapshot) {
  SetClue(1, 3, Orizzontale, "Prelevata");  // by a fetch, in memory alone
  Show();
  Change(0, u"COSE");
  Click(window->Command3d1);
  EXPECT_FALSE(window->isVisible());
  Forget();
  CartellaProgramma = InFolder("");
  ASSERT_EQ(ApriCruciverba(PercorsoIstantanea()), Apertura::Intera);
  EXPECT_EQ(DrawingOfSchema(), (Texts{"COSE", "A#LE", "SOLE"}));
  EXPECT_EQ(Definizione(1, 3, Orizzontale), "Prelevata");
}

TEST_F(TelarBroTest, EveryOtherWayOutLeavesGridAndClues) {
  const std::string snapshot = ReadFile(PercorsoIstantanea());
  const std::function<void()> ways[] = {
      [this] { Click(window->Command3d2); },
      [this] { window->menutorna->trigger(); },
      [this] { window->close(); },
      [this] { DoubleClick(1, 1), QTest::keyClick(window->Text1, Qt::Key_Escape); },
      [this] { DoubleClick(1, 1), QTest::keyClick(window->Text2, Qt::Key_Escape); },
  };
  for (const auto& leave : ways) {
    MarkModified(false);
    Show();
    Change(0, u"COSE", u"Oggetti");
    EXPECT_EQ(Clue(1, 1, Orizzontale), "Oggetti");
    leave();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Definizione(1, 1, Orizzontale), "Ci si abita");
    EXPECT_EQ(DrawingOfSchema(), (Texts{"CASA", "A#LE", "SOLE"}));
    EXPECT_EQ(SchemaModificato, Vero);
    EXPECT_EQ(ReadFile(PercorsoIstantanea()), snapshot);
  }
}

TEST_F(TelarBroTest, OkTakesAnOpenRowAlongUnlessItIsRefused) {
  MakeStore("CASA\tF\tUn tetto\n");
  Show();
  DoubleClick(0, 1);
  Type(window->Text1, u"C");
  Click(window->Command3d1);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  const std::function<void()> ways[] = {
      [this] { Type(window->Text2, u"Oggetti"); },
      [this] { Type(window->Text1, u"cose"); },  // in small letters
      [this] {
        Click(window->Command2);
        Popup();
        window->Menud1.at(0)->trigger();
      },
  };
  Texts taken;
  for (const auto& write : ways) {
    Draw({"CASA", "A#LE", "SOLE"});
    SetClue(1, 1, Orizzontale, "Ci si abita");
    Show();
    DoubleClick(0, 1);
    write();
    Click(window->Command3d1);
    EXPECT_FALSE(window->isVisible());
    taken.push_back(ParolaCasella(1, 1, Orizzontale) + ' ' + Definizione(1, 1, Orizzontale));
  }
  EXPECT_EQ(taken, (Texts{"CASA Oggetti", "COSE Ci si abita", "CASA Un tetto"}));
  MarkModified(false);
  Show();
  DoubleClick(0, 1);
  Click(window->Command3d1);
  EXPECT_EQ(SchemaModificato, Falso) << "only looked at";
}

TEST_F(TelarBroTest, WhatWasTypedIntoAWordIsUndone) {
  Show();
  DoubleClick(0, 1);
  Type(window->Text1, u"cose");
  EXPECT_EQ(window->Text1->text(), QStringLiteral("COSE"));
  while (window->Text1->isUndoAvailable())
    window->Text1->undo();
  EXPECT_EQ(window->Text1->text(), QStringLiteral("CASA"));
}

TEST_F(TelarBroTest, TheSmallestAndTheWidestGridShow) {
  Draw({"A#", "#B"});
  Show();
  EXPECT_EQ(window->Gitter1->rowCount(), 1);
  DoubleClick(0, 1);
  Press(Qt::Key_Return);
  EXPECT_FALSE(Editing()) << "without a word nothing opens";
  Draw({std::string(53, 'A')});
  Show();
  DoubleClick(0, 1);
  QTest::keyClick(window->Text1, Qt::Key_Return);
  EXPECT_EQ(Cell(0, 1), std::string(53, 'A'));
}

TEST_F(TelarBroTest, ABadCellEndsTheProgramBeforeTheWindowShows) {
  Draw({"CA\xC8"});
  EXPECT_THROW(TelarBro(nullptr), ProgramFailed);
  EXPECT_EQ(user.TakeTexts(), Texts{"Tipo di file non valido: Esecuzione terminata!"});
}

}  // namespace
}  // namespace telarium
