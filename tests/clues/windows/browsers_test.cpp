#include <QHeaderView>
#include <ctime>
#include <filesystem>

#include "auxiliary/windows/Form6.h"
#include "clues/sqlite_database.h"
#include "clues/windows/frmParole.h"
#include "clues/windows/telariummdb.h"
#include "editor/windows/form_commands.h"
#include "editor/windows/modal_windows.h"
#include "platform/qt/qt_text.h"
#include "support/clue_store.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class Browsers : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    MakeStore("CASA\tF\tAbitazione\nCASA\tF\tDimora\nARIA\tF\tSi respira\nZETA\tD\tUltima\n");
  }

  static void Key(QWidget& window, int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window.focusWidget(), static_cast<Qt::Key>(key), modifiers);
  }
  static void Type(QWidget& window, const char16_t* text) {
    for (const QChar c : QString::fromUtf16(text)) {
      const Qt::Key key = c == u'\n' ? Qt::Key_Return : Qt::Key_unknown;
      QTest::sendKeyEvent(QTest::Click, window.focusWidget(), key, QString(c), Qt::NoModifier);
    }
  }

  static std::string Status(const FinestraEnciclopedia& window) {
    return window.lblStatus->text().toStdString();
  }

  // The buttons that show, by their names behind "cmd".
  static std::string Buttons(const FinestraEnciclopedia& window) {
    std::string names;
    for (const QPushButton* button : window.picButtons->findChildren<QPushButton*>())
      if (button->isVisible()) names += button->objectName().mid(3).toStdString() + ' ';
    return names + (window.cmdNext->isEnabled() ? "and moves" : "");
  }

  void Behind(const char* sql) const { BaseDati(InFolder("telarium1.mdb")).Esegui(sql); }

  // From here on nothing can be stored.
  std::unique_ptr<BaseDati> LockStore() const {
    auto lock = std::make_unique<BaseDati>(InFolder("telarium1.mdb"));
    lock->Esegui("BEGIN IMMEDIATE");
    return lock;
  }

  RecordingWindow main;
};

// Does this when what it watches gets hidden.
class AtHiding : public QObject {
 public:
  explicit AtHiding(std::function<void()> act) : act_(std::move(act)) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide) act_();
    return false;
  }

 private:
  std::function<void()> act_;
};

const Texts Busy = {"Enciclopedia telarium1.mdb: il file \xE8 occupato da un altro programma."};

template <class Window>
class Browser : public Browsers {
 protected:
  void Start() {
    window = std::make_unique<Window>(nullptr);
    Open(*window);
  }
  void TearDown() override {
    window.reset();
    Browsers::TearDown();
  }

  std::unique_ptr<Window> window;
};

// --- The browser of one word ---

class OneWord : public Browser<telariummdb> {
 protected:
  QLineEdit& Word() { return static_cast<QLineEdit&>(*window->txtFields[2]); }
  QPlainTextEdit& Family(std::size_t which) {
    return static_cast<QPlainTextEdit&>(*window->txtFields[which]);
  }
  // The word, the easy and the hard family, as they show.
  std::string Shown() {
    const QStringList texts = {Word().text(), Family(1).toPlainText(), Family(0).toPlainText()};
    return texts.join(u'|').replace(u'\n', u'/').toStdString();
  }
  void Append(std::size_t family, const char16_t* text) {
    window->txtFields[family]->setFocus();
    Family(family).moveCursor(QTextCursor::End);
    Type(*window, text);
  }
  void Search(std::optional<std::string> text) {
    user.AnswerText(std::move(text));
    Click(window->Cerca);
  }
};

TEST_F(OneWord, MovesByItsButtons) {
  Start();
  ExpectNamedControls(*window);
  EXPECT_TRUE(window->Label1->text().endsWith(QStringLiteral("definizioni con un <Invio>.")));
  EXPECT_EQ(Shown(), "ARIA|Si respira|");
  EXPECT_EQ(Status(*window), "Record: 1");
  Click(window->cmdPrevious);
  EXPECT_EQ(user.beeps, 1);
  window->DatiCambiati = Vero;
  Click(window->cmdNext);
  EXPECT_EQ(window->DatiCambiati, Falso);
  EXPECT_EQ(Shown(), "CASA|Abitazione/Dimora|");
  Click(window->cmdLast);
  EXPECT_EQ(Shown(), "ZETA||Ultima");
  EXPECT_EQ(user.beeps, 1);
  Click(window->cmdNext);
  EXPECT_EQ(user.beeps, 2);
  EXPECT_EQ(Status(*window), "Record: 3");
  Click(window->cmdFirst);
  EXPECT_EQ(Status(*window), "Record: 1");
}

TEST_F(OneWord, TakesItsKeysFromEveryControlWhileItBrowses) {
  constexpr std::tuple<int, Qt::KeyboardModifiers, const char*> steps[] = {
      {Qt::Key_Down, Qt::NoModifier, "Record: 2"},
      {Qt::Key_PageDown, Qt::NoModifier, "Record: 3"},
      {Qt::Key_Up, Qt::KeypadModifier, "Record: 2"},
      {Qt::Key_PageUp, Qt::NoModifier, "Record: 1"},
      {Qt::Key_Down, Qt::ControlModifier, "Record: 3"},
      {Qt::Key_Up, Qt::ControlModifier, "Record: 1"},
      {Qt::Key_End, Qt::NoModifier, "Record: 3"},
      {Qt::Key_Home, Qt::NoModifier, "Record: 1"}};
  Start();
  for (QWidget* control :
       {window->txtFields[0], window->txtFields[2], static_cast<QWidget*>(window->cmdEdit)}) {
    control->setFocus();
    for (const auto& [key, modifiers, status] : steps) {
      Key(*window, key, modifiers);
      EXPECT_EQ(Status(*window), status) << control->objectName().toStdString();
    }
  }
  Click(window->cmdEdit);
  window->txtFields[1]->setFocus();
  for (const int key : {Qt::Key_Down, Qt::Key_Escape, Qt::Key_End})
    Key(*window, key);
  Key(*window, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Status(*window), "Modifica il record");
  EXPECT_TRUE(window->isVisible());
  Type(*window, u"!");
  EXPECT_EQ(Shown(), "ARIA|Si respira!|") << "in editing the keys are the box's";
  Click(window->cmdCancel);
  ImpostaPuntatoreMouse(PuntatoreClessidra);
  Key(*window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(PuntatoreMouse, PuntatoreFreccia);
  EXPECT_EQ(Stored("ARIA"), "Si respira");
}

TEST_F(OneWord, EnterInABoxPressesNoButton) {
  Start();
  Word().setFocus();
  Key(*window, Qt::Key_Return);
  EXPECT_EQ(Buttons(*window), "Add Edit Delete Refresh Close and moves");
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(TabOrder(*window),
            "txtFields_2 txtFields_1 txtFields_0 Cerca Command2 Command1 cmdAdd cmdEdit cmdDelete "
            "cmdRefresh cmdClose cmdFirst cmdPrevious cmdNext cmdLast ");
  window->cmdAdd->setFocus();
  Key(*window, Qt::Key_Return);
  EXPECT_EQ(Buttons(*window), "Update Cancel ");
}

TEST_F(OneWord, StoresWhatWasTypedWhenTheRowIsLeft) {
  Start();
  Append(1, u"\n\u00C8 nell'aria \u03B1");
  Click(window->cmdNext);
  EXPECT_EQ(user.TakeTexts(),
            Texts{"Enciclopedia telarium1.mdb: ci sono caratteri che non pu\xF2 contenere."});
  EXPECT_EQ(Status(*window), "Record: 1") << "the row is not left";
  QTest::keyClick(&Family(1), Qt::Key_Backspace);
  Click(window->cmdNext);
  EXPECT_EQ(Stored("ARIA"), "Si respira\r\n\u00C8 nell'aria ");
  Append(0, u"Dura");
  Click(window->cmdRefresh);
  EXPECT_EQ(Stored("CASA", true), "Dura");
  EXPECT_EQ(Status(*window), "Record: 1");
  Family(1).clear();
  Search("Z");
  EXPECT_EQ(Stored("ARIA"), "-");
  Append(1, u"Nuova");
  Key(*window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Stored("ZETA"), "Nuova");
  ASSERT_EQ(user.requests.size(), 1u);
  EXPECT_EQ(user.requests[0].richiesta, "Inserisci parola di ricerca");
}

TEST_F(OneWord, LeavesWhatNobodyTouchedToTheByte) {
  Behind(
      "UPDATE Parole SET PAROLA = 'aria', DEFINIZ_FACILE = '\u03B1' || char(10) || 'b\u00A0c' ||"
      " char(13) WHERE PAROLA = 'ARIA'");
  Start();
  Click(window->cmdLast);
  EXPECT_EQ(Shown(), "ARIA|?/b c/|") << "small letters show as capitals";
  Append(0, u"x");
  Click(window->cmdFirst, window->cmdLast);
  BaseDati file(InFolder("telarium1.mdb"));
  Istruzione same(file,
                  "SELECT count(*) FROM Parole WHERE PAROLA = 'aria' AND DEFINIZ_DIFFIC = 'x' AND"
                  " DEFINIZ_FACILE = '\u03B1' || char(10) || 'b\u00A0c' || char(13)");
  ASSERT_TRUE(same.Passo());
  EXPECT_EQ(same.Intero(0), 1);
}

TEST_F(OneWord, AddsARowAtTheEnd) {
  Start();
  Click(window->cmdNext, window->cmdAdd);
  EXPECT_EQ(Status(*window), "Aggiunge il record");
  EXPECT_EQ(Buttons(*window), "Update Cancel ");
  EXPECT_TRUE(window->InAggiunta && !window->InModifica);
  EXPECT_EQ(Shown(), "||");
  Type(*window, u"b\u00E0r");
  Append(1, u"Ci si beve");
  Click(window->cmdUpdate);
  EXPECT_EQ(Status(*window), "Record: 4");
  EXPECT_EQ(Shown(), "B\u00C0R|Ci si beve|");
  EXPECT_EQ(Buttons(*window), "Add Edit Delete Refresh Close and moves");
  EXPECT_EQ(Stored("B\xC0R"), "Ci si beve");
  Click(window->cmdRefresh, window->cmdNext);
  EXPECT_EQ(Shown(), "B\u00C0R|Ci si beve|") << "sorted in";
}

TEST_F(OneWord, CancelGoesBackToWhereTheLastRowWasBegun) {
  Start();
  Click(window->cmdNext, window->cmdEdit);
  Append(1, u"x");
  Click(window->cmdCancel);
  EXPECT_EQ(Shown(), "ARIA|Si respira|") << "no row was begun: the first one";
  Click(window->cmdNext, window->cmdAdd);
  Type(*window, u"bar");
  Click(window->cmdCancel);
  EXPECT_EQ(Shown(), "CASA|Abitazione/Dimora|");
  EXPECT_EQ(Stored("BAR"), "?");
  EXPECT_EQ(Stored("CASA"), "Abitazione\r\nDimora");
}

TEST_F(OneWord, DeletesDownToNothing) {
  Start();
  Click(window->cmdLast, window->cmdDelete);
  EXPECT_EQ(Shown(), "CASA|Abitazione/Dimora|") << "the new last row";
  Click(window->cmdFirst, window->cmdDelete);
  EXPECT_EQ(Status(*window), "Record: 1");
  Click(window->cmdDelete, window->cmdFirst, window->cmdLast, window->cmdNext, window->cmdPrevious,
        window->cmdRefresh);
  EXPECT_EQ(user.beeps, 0);
  EXPECT_EQ(Shown(), "||");
  EXPECT_TRUE(Word().isReadOnly() && Family(0).isReadOnly()) << "there is no row to write in";
  Click(window->cmdDelete);
  EXPECT_EQ(user.TakeTexts(),
            Texts{"Enciclopedia telarium1.mdb: non c'\xE8 nessuna riga da eliminare."});
  Search("A");
  EXPECT_EQ(Status(*window), "Parola non trovata !");
}

TEST_F(OneWord, SearchesForwardOnly) {
  Start();
  Search("cas");
  Search(std::nullopt);
  Search("");
  EXPECT_EQ(Status(*window), "Record: 2");
  Search("L'");
  EXPECT_EQ(user.TakeTexts(), Texts{"Enciclopedia telarium1.mdb: la parola \"L'\" contiene un "
                                    "apostrofo e non si pu\xF2 cercare."});
  EXPECT_EQ(user.beeps, 0);
  Click(window->cmdNext);
  Search("CASA");
  EXPECT_EQ(user.beeps, 1);
  EXPECT_EQ(Status(*window), "Record: 1");
}

TEST_F(OneWord, AsksTheWordProcessorForAWord) {
  Start();
  Click(window->Command2, window->cmdAdd, window->Command2);
  EXPECT_EQ(machine.written, Texts{"ARIA"});
  EXPECT_EQ(user.TakeTexts(), Texts{"Inserire prima una parola della quale si intende chiedere il "
                                    "significato a Word (Se installato)."});
}

TEST_F(OneWord, AnErrorInAButtonShowsAndLeavesModeAndText) {
  Start();
  Append(1, u"x");
  auto lock = LockStore();
  Click(window->cmdNext);
  EXPECT_EQ(user.TakeTexts(), Busy);
  EXPECT_EQ(Shown(), "ARIA|Si respirax|");
  Click(window->cmdEdit, window->cmdUpdate);
  EXPECT_EQ(user.TakeTexts(), Busy);
  EXPECT_EQ(Buttons(*window), "Update Cancel ");
  EXPECT_TRUE(main.shown.empty()) << "no notice behind the opening";
  Click(window->cmdCancel);
  EXPECT_EQ(Shown(), "ARIA|Si respira|");
  Append(1, u"y");
  Click(window->cmdClose);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(user.TakeTexts(), Busy);
  lock.reset();
  Click(window->cmdFirst);
  EXPECT_EQ(Stored("ARIA"), "Si respiray");
  lock = LockStore();
  Append(1, u"z");
  Click(window->cmdClose);
  EXPECT_EQ(user.TakeTexts(), Busy);
  EXPECT_TRUE(window->isVisible()) << "a new text, a new warning";
  Click(window->cmdClose);
  EXPECT_EQ(user.TakeTexts(), Busy);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(OneWord, WhatAnotherProgramHasStoredIsNotWrittenOver) {
  Start();
  Behind("UPDATE Parole SET DEFINIZ_FACILE = 'Altrui' WHERE PAROLA = 'ARIA'");
  Append(1, u"x");
  Click(window->cmdNext);
  EXPECT_EQ(Shown(), "ARIA|Si respirax|");
  Click(window->cmdRefresh);
  const std::string lost =
      "Enciclopedia telarium1.mdb: la riga \xE8 stata cambiata da un altro programma.";
  EXPECT_EQ(user.TakeTexts(), (Texts{lost, lost}));
  EXPECT_EQ(Shown(), "ARIA|Altrui|") << "the way on";
  Click(window->cmdNext);
  EXPECT_EQ(Status(*window), "Record: 2");
}

TEST_F(OneWord, ClosingInAModeAsksForWhatWasTyped) {
  Start();
  Click(window->cmdAdd);
  EXPECT_FALSE(window->Cerca->isEnabled() || window->Command1->isEnabled());
  Word().setText(QStringLiteral("LUNA"));
  for (const Risposta answer : {Risposta::Annulla, Risposta::Si}) {
    user.Answer(answer);
    window->close();
    EXPECT_EQ(window->isVisible(), answer == Risposta::Annulla);
    EXPECT_EQ(Stored("LUNA"), answer == Risposta::Si ? "-" : "?");
  }
  Start();
  Click(window->cmdEdit);
  Append(1, u"x");
  user.Answer(Risposta::No);
  window->close();
  EXPECT_EQ(Stored("ARIA"), "Si respira");
  EXPECT_EQ(user.TakeTexts().size(), 3u);
}

TEST_F(OneWord, FamilyOfOneEndlessWordShowsWithoutAPause) {
  ApriEnciclopedia()->AggiungiParola("A", std::string(1'000'000, 'z'));
  const std::clock_t begun = std::clock();  // of this process: others may hold the machine
  Start();
  window->grab();
  EXPECT_LT((std::clock() - begun) / (CLOCKS_PER_SEC / 1000), Patience);
  EXPECT_EQ(Family(1).toPlainText().size(), 1'000'000);
}

TEST_F(OneWord, ARowThatIsGoneShowsNothingOfTheOneBefore) {
  Start();
  Behind("DELETE FROM Parole WHERE PAROLA = 'ZETA'");
  Click(window->cmdLast);
  EXPECT_EQ(user.TakeTexts(), Texts{"Enciclopedia telarium1.mdb: la riga non c'\xE8 pi\xF9."});
  EXPECT_EQ(Shown(), "||");
  EXPECT_TRUE(Word().isReadOnly());
  Click(window->cmdPrevious);
  EXPECT_EQ(Shown(), "CASA|Abitazione/Dimora|");
  EXPECT_FALSE(Word().isReadOnly());
}

TEST_F(OneWord, OpensWithoutRowsWhenTheStoreIsMissing) {
  fs::rename(InFolder("telarium1.mdb"), InFolder("altrove"));
  Start();
  EXPECT_EQ(main.shown, std::vector<Modale>{Modale::Form6});
  const Texts missing = {"Enciclopedia telarium1.mdb: il file manca o non si pu\xF2 aprire."};
  EXPECT_EQ(user.TakeTexts(), missing);
  EXPECT_EQ(Shown(), "||");
  EXPECT_EQ(Status(*window), "Record: 0");
  Click(window->cmdNext, window->cmdAdd);
  EXPECT_EQ(user.TakeTexts(), Texts{"Enciclopedia telarium1.mdb: il file non \xE8 aperto."});
  Click(window->cmdRefresh);
  EXPECT_EQ(user.TakeTexts(), missing);
  fs::rename(InFolder("altrove"), InFolder("telarium1.mdb"));
  Click(window->cmdRefresh);
  EXPECT_EQ(Shown(), "ARIA|Si respira|");
}

TEST_F(OneWord, GivesWayToTheTable) {
  Start();
  Append(1, u" sempre");
  bool wentFirst = false;
  WhenOpen<frmParole>(*window, [&](frmParole& table) {
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(table.grdDataGrid->model()->index(0, 1).data().toString(),
              QStringLiteral("Si respira sempre"));
    AtHiding watch([&] { wentFirst = !window->isVisible(); });
    table.installEventFilter(&watch);
    Click(table.cmdClose);
  });
  Click(window->Command1);
  EXPECT_TRUE(wentFirst) << "else the keyboard comes to a window that is going";
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(fs::exists(InFolder("telarium1.mdb-wal")));
}

// --- The browser of all words ---

// What the delegate of a table draws of a cell.
class DrawnTexts : public EditorDiCelle {
 public:
  std::string Of(QStyleOptionViewItem option, const QModelIndex& cell) const {
    initStyleOption(&option, cell);
    return option.text.replace(QChar::LineSeparator, u'/').toStdString();
  }
};

class AllWords : public Browser<frmParole> {
 protected:
  QTableView& Grid() { return *window->grdDataGrid; }
  // A row of the table as it shows.
  std::string Shown(int row) {
    QStringList texts;
    for (int c = 0; c < Grid().model()->columnCount(); ++c)
      texts.append(Grid().model()->index(row, c).data().toString());
    return texts.join(u'|').replace(u'\n', u'/').toStdString();
  }
  // Row and column of the current cell, from 1.
  std::pair<int, int> Current() {
    return {Grid().currentIndex().row() + 1, Grid().currentIndex().column() + 1};
  }
  void ClickCell(int row, int column) { ClickItem(Grid(), row - 1, column - 1); }
  QPlainTextEdit* Editor() {
    return Grid().viewport()->findChild<QPlainTextEdit*>(QStringLiteral("Editor"));
  }
  // Waits until the editor that was closed has gone.
  void ExpectNoEditor() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Editor(); }, Patience));
  }
};

TEST_F(AllWords, ShowsTheRowsAndMovesThroughThem) {
  Start();
  ExpectNamedControls(*window);
  EXPECT_EQ(window->windowTitle(),
            QStringLiteral("Telarium - Enciclopedia definizioni (Tabella) "));
  EXPECT_EQ(Grid().model()->rowCount(), 4) << "one for a new row";
  EXPECT_GE(window->lblStatus->width(), window->lblStatus->sizeHint().width());
  EXPECT_EQ(Grid().model()->headerData(1, Qt::Horizontal), QStringLiteral("DEFINIZ_FACILE"));
  EXPECT_EQ(Grid().model()->headerData(3, Qt::Vertical), QStringLiteral("*"));
  EXPECT_EQ(Shown(1), "CASA|Abitazione/Dimora|");
  EXPECT_EQ(Shown(3), "||");
  EXPECT_EQ(Current(), (std::pair{1, 1}));
  EXPECT_EQ(TabOrder(*window),
            "grdDataGrid cmdAdd cmdEdit cmdDelete cmdRefresh cmdClose cmdFirst "
            "cmdPrevious cmdNext cmdLast ");
  ClickCell(2, 3);
  EXPECT_EQ(Status(*window), "Record: 2");
  Key(*window, Qt::Key_Down);
  EXPECT_EQ(user.beeps, 0);
  Key(*window, Qt::Key_Down);
  EXPECT_EQ(user.beeps, 1);
  EXPECT_EQ(Current(), (std::pair{3, 3})) << "not the row for new entries";
  Key(*window, Qt::Key_Left);
  Key(*window, Qt::Key_Home);
  EXPECT_EQ(Current(), (std::pair{1, 2}));
  Click(window->cmdEdit);
  Key(*window, Qt::Key_Down);
  EXPECT_EQ(Status(*window), "Record: 2") << "in editing the keys are the table's";
  Click(window->cmdCancel);
  EXPECT_EQ(Current(), (std::pair{1, 2}));
}

TEST_F(AllWords, EditsInPlace) {
  Start();
  ClickCell(2, 2);
  Grid().setFocus();
  Key(*window, Qt::Key_F2);
  ASSERT_TRUE(Editor());
  EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("Abitazione\nDimora"));
  Key(*window, Qt::Key_Return, Qt::ControlModifier);
  Type(*window, u"Nido");
  Key(*window, Qt::Key_Home);
  Type(*window, u"> ");
  Key(*window, Qt::Key_Return);
  ExpectNoEditor();
  EXPECT_EQ(Shown(1), "CASA|Abitazione/Dimora/> Nido|");
  EXPECT_EQ(Stored("CASA"), "Abitazione\r\nDimora") << "the row is not left yet";
  Grid().setFocus();
  Key(*window, Qt::Key_Right);
  Type(*window, u"dura");
  Click(window->cmdNext);
  EXPECT_EQ(Stored("CASA"), "Abitazione\r\nDimora\r\n> Nido");
  EXPECT_EQ(Stored("CASA", true), "dura");
  ExpectNoEditor();

  Grid().setFocus();
  Key(*window, Qt::Key_Return);
  ASSERT_TRUE(Editor());
  Type(*window, u"x");
  Key(*window, Qt::Key_Escape);
  ExpectNoEditor();
  EXPECT_TRUE(window->isVisible());
  Key(*window, Qt::Key_F2);
  Type(*window, u"y");
  Click(window->cmdClose);
  EXPECT_EQ(Stored("ZETA", true), "Ultimay");
}

TEST_F(AllWords, AddsInItsLastRow) {
  Start();
  Click(window->cmdAdd);
  EXPECT_EQ(Current(), (std::pair{4, 1}));
  EXPECT_EQ(window->focusWidget(), &Grid());
  EXPECT_EQ(Buttons(*window), "Add Edit Delete Refresh Close and moves");
  EXPECT_EQ(window->InAggiunta, Falso);
  Key(*window, Qt::Key_Up);
  EXPECT_EQ(Current(), (std::pair{3, 1}));
  EXPECT_EQ(Grid().model()->rowCount(), 4) << "an untouched one is none";
  ClickCell(4, 1);
  Grid().setFocus();
  Type(*window, u"bar");
  Key(*window, Qt::Key_Tab);
  ASSERT_TRUE(Editor());
  Type(*window, u"Ci si beve");
  ClickCell(1, 1);
  EXPECT_EQ(Stored("bar"), "Ci si beve") << "as it was typed";
  EXPECT_EQ(Shown(3), "bar|Ci si beve|");
  EXPECT_EQ(Grid().model()->rowCount(), 5);
  ClickCell(4, 1);
  Grid().setFocus();
  Type(*window, u"BIRRA");
  Click(window->cmdFirst);
  EXPECT_EQ(Stored("BIRRA"), "Ci si beve") << "what is typed takes the place of a word";
  ClickCell(4, 1);
  Click(window->cmdDelete);
  EXPECT_EQ(Current().first, 3) << "the new last row";
  EXPECT_EQ(Grid().model()->rowCount(), 4);
}

TEST_F(AllWords, ARowThatIsCutShowsThatMoreFollows) {
  ApriEnciclopedia()->AggiungiParola("ZOO", "Uno\r\nDue\r\nTre\r\nQuattro");
  ApriEnciclopedia()->AggiungiParola("ZUPPA", "Uno\r\nDue\r\nTre");
  Start();
  QStyleOptionViewItem option;
  option.widget = &Grid();
  option.font = Grid().font();
  option.fontMetrics = Grid().fontMetrics();
  const auto drawn = [&](int row) {
    const QModelIndex cell = Grid().model()->index(row, 1);
    option.rect = Grid().visualRect(cell);
    return DrawnTexts().Of(option, cell);
  };
  EXPECT_EQ(drawn(3), "Uno/Due/Tre\u2026");
  EXPECT_EQ(drawn(4), "Uno/Due/Tre");
  Behind("UPDATE Parole SET DEFINIZ_FACILE = replace(hex(zeroblob(500)), '0', 'abc de ')");
  Click(window->cmdRefresh);
  EXPECT_TRUE(drawn(3).ends_with("\u2026"));
}

TEST_F(AllWords, CancelDropsWhatIsBeingTyped) {
  Start();
  ClickCell(2, 2);
  Click(window->cmdEdit);
  Grid().setFocus();
  Type(*window, u"x");
  Click(window->cmdCancel);
  EXPECT_EQ(Current(), (std::pair{1, 2})) << "always the first row";
  EXPECT_EQ(Shown(1), "CASA|Abitazione/Dimora|");
  Click(window->cmdAdd, window->cmdEdit, window->cmdCancel);
  EXPECT_EQ(Current(), (std::pair{1, 1})) << "also from the row for new entries";
  EXPECT_EQ(Status(*window), "Record: 1");
  Key(*window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Stored("CASA"), "Abitazione\r\nDimora");
}

TEST_F(AllWords, ARowThatCannotBeStoredIsNotLeft) {
  Start();
  ClickCell(1, 2);
  Grid().setFocus();
  Type(*window, u"x");
  auto lock = LockStore();
  ClickCell(3, 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Current().first == 1; }, Patience));
  EXPECT_EQ(user.TakeTexts(), Busy);
  EXPECT_EQ(Shown(0), "ARIA|Si respirax|");
  lock.reset();
  ClickCell(3, 1);
  EXPECT_EQ(Stored("ARIA"), "Si respirax");
  Behind("DELETE FROM Parole WHERE PAROLA = 'CASA'");
  ClickCell(2, 1);
  EXPECT_TRUE(user.TakeTexts().empty()) << "it is still in memory";
}

TEST_F(AllWords, OpensOnAnEmptyAndOnAMissingStore) {
  Behind("DELETE FROM Parole");
  Start();
  EXPECT_EQ(Grid().model()->rowCount(), 1);
  Click(window->cmdFirst, window->cmdLast, window->cmdNext, window->cmdPrevious, window->cmdEdit,
        window->cmdUpdate);
  EXPECT_EQ(user.beeps, 0);
  Click(window->cmdAdd);
  Type(*window, u"S");
  Click(window->cmdClose);
  EXPECT_EQ(Stored("S"), "-");
  fs::remove(InFolder("telarium1.mdb"));
  Start();
  EXPECT_EQ(Grid().model()->rowCount(), 0);
  Click(window->cmdAdd);
  EXPECT_EQ(user.TakeTexts().size(), 2u);
}

// --- Both come up through the main window ---

TEST_F(Browsers, ANoticeBelongsToTheWindowThatIsOpen) {
  EXPECT_TRUE(ComandoDellaVoce("Menudefiniz") && ComandoDellaVoce("menuado"));
  QWidget above;
  WhenOpen<telariummdb>(above, [&](telariummdb& window) {
    WhenOpen<Form6>(above, [&window](Form6& notice) {
      EXPECT_EQ(notice.parentWidget(), &window);
      notice.close();
    });
    MostraFinestraModale(Modale::Form6, above);
    window.close();
  });
  MostraFinestraModale(Modale::telariummdb, above);
}

}  // namespace
}  // namespace telarium
