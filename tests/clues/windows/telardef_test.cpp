#include "clues/windows/TelarDef.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "dictionary/dictionary_choice.h"
#include "platform/qt/qt_text.h"
#include "support/clue_store.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

using Texts = std::vector<std::string>;

class TelarDefTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    OpenDictionary({"MELA", "MALA", "MOLA", "CASA", "SOLE"});
    MakeStore(
        "MELA\tF\tFrutto\nMELA\tF\tCosì rossa\nMELA\tD\tCadde su un fisico\nALE\tD\tSola\n"
        "AS\tF\tCarta\n");
  }

  ParolaInEsame given{.testo = {"MO.A", "Una clue"}, .numero = 1};

  // The entries of a list or combo box.
  static std::string Items(const QAbstractItemModel* list) {
    std::string items;
    for (int row = 0; row < list->rowCount(); ++row)
      items += list->index(row, 0).data().toString().toStdString() + '|';
    return items;
  }

  // The mask as the window shows it: a letter, "_" for a free place, nothing beyond the word.
  static std::string Mask(const TelarDef& window) {
    std::string mask;
    for (std::size_t i = 0; i < window.Check3d1.size(); ++i) {
      if (window.Check3d1[i]->isHidden()) continue;
      EXPECT_EQ(window.Check3d1[i]->isChecked(), !window.Label2[i]->isHidden());
      mask += window.Label2[i]->isHidden() ? "_" : window.Label2[i]->text().toStdString();
    }
    return mask;
  }
};

TEST_F(TelarDefTest, OpensWithWordClueAndMask) {
  TelarDef window(given, nullptr);
  Open(window);
  EXPECT_EQ(window.Label1->text(), QStringLiteral("1 Orizz. "));
  EXPECT_EQ(window.Text2->text(), QStringLiteral("MO.A"));
  EXPECT_EQ(window.Text1->toPlainText(), QStringLiteral("Una clue"));
  EXPECT_EQ(window.focusWidget(), window.Text1);
  EXPECT_EQ(Mask(window), "MO_A");
  EXPECT_EQ(window.Command3D4->toolTip(),
            QStringLiteral("Ricerca la parola mascherata in : LessicoItaliano.dat"));
  ExpectNamedControls(window);
  window.Text1->setFocus();
  EXPECT_EQ(TabOrder(window),
            "Text1 Command1 Command2 Command3 List1 List2 Check3d1_0 Check3d1_1 Check3d1_2 "
            "Check3d1_3 Command3D4 Command4 Combo1 Command3d1 Command3d2 Command3D3 Text2 ");
}

TEST_F(TelarDefTest, WordsThatNoDictionaryHoldsHaveNoMask) {
  for (const char* word : {"CA", "ABCDEFGHILMNOPQR"}) {
    given.testo.parola = word;
    TelarDef window(given, nullptr);
    Open(window);
    EXPECT_EQ(Mask(window), "") << word;
    EXPECT_FALSE(window.Command3D4->isVisible() || window.Command4->isVisible() ||
                 window.Combo1->isVisible() || window.Picture1->isVisible());
  }
}

TEST_F(TelarDefTest, GivesBackWordAndClue) {
  TelarDef window(given, nullptr);
  Open(window);
  window.Text2->setFocus();
  QTest::keyClicks(window.Text2, QStringLiteral("mela"));
  EXPECT_EQ(window.Text2->text(), QStringLiteral("MELA"));
  window.Text1->selectAll();
  window.Text1->insertPlainText(QStringLiteral("La pi\u00F9 bella"));
  window.Command3d1->setFocus();
  QTest::keyClick(window.Command3d1, Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(window.Esame().Accettata(), (ParolaDefinita{"MELA", "La pi\xF9 bella"}));
  EXPECT_EQ(window.NumVociDizionari, 0);
}

TEST_F(TelarDefTest, AnEmptyClueAndAnEmptyCellAreAccepted) {
  TelarDef window(given, nullptr);
  Open(window);
  window.Text2->setText(QStringLiteral(".ELA"));
  window.Text1->clear();
  QTest::keyClick(window.Text1, Qt::Key_Enter);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(window.Esame().Accettata(), (ParolaDefinita{".ELA", ""}));
}

TEST_F(TelarDefTest, RefusedWordsAndCluesStayInTheWindow) {
  TelarDef window(given, nullptr);
  Open(window);
  using Case = std::tuple<const char16_t*, const char16_t*, std::string>;
  const std::string letters =
      "La parola contiene caratteri non ammessi (ammessi solo caratteri alfabetici da A a Z)";
  for (const auto& [word, clue, message] :
       {Case{u"MEL", u"x",
             "La parola deve avere obbligatoriamente 4 caratteri, usare il simbolo punto '.' per "
             "gli spazi."},
        Case{u"M3LA", u"x", letters}, Case{u"M\u00C8LA", u"x", letters},
        Case{u"MELA", u"x \u2192 y",
             "La definizione contiene caratteri che il file del cruciverba non pu\xF2 "
             "contenere."}}) {
    window.Text2->setText(QString::fromUtf16(word));
    window.Text1->setPlainText(QString::fromUtf16(clue));
    Click(window.Command3d1);
    EXPECT_EQ(user.TakeTexts(), Texts{message});
    EXPECT_TRUE(window.isVisible());
  }
  QTest::keyClick(window.Text2, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(window.Esame().Accettata());
}

TEST_F(TelarDefTest, ClueIsTypedUpToItsLimitAndALongerOneSurvivesUntouched) {
  given.testo.definizione = std::string(70, 'a') + "\rb\n\x80";
  TelarDef untouched(given, nullptr);
  Open(untouched);
  Click(untouched.Command3d1);
  EXPECT_EQ(untouched.Esame().Accettata(), given.testo);
  given.testo.definizione.clear();
  TelarDef window(given, nullptr);
  Open(window);
  QTest::keyClicks(window.Text1, QStringLiteral("abc"));
  QTest::keyClicks(window.Text1, QString(80, u'x'));
  EXPECT_EQ(window.Text1->toPlainText().size(), 60);
  window.Text1->undo();
  EXPECT_LT(window.Text1->toPlainText().size(), 60) << "no key has been taken back by another";
  window.Text1->setPlainText(QString(58, u'x'));
  QGuiApplication::clipboard()->setText(QStringLiteral("uno\ndue"));
  window.Text1->paste();
  EXPECT_EQ(window.Text1->toPlainText(), QStringLiteral("un") + QString(58, u'x'));
  window.Text1->setPlainText(QStringLiteral("uno\ndue"));
  Click(window.Command3d1);
  EXPECT_EQ(window.Esame().Accettata()->definizione, "uno due");
}

TEST_F(TelarDefTest, FindsTheCluesOfAWord) {
  TelarDef window(given, nullptr);
  Open(window);
  Click(window.Command1);  // a word with an empty cell
  const QImage withoutFocus = window.List2->grab().toImage();
  window.List2->setFocus();
  EXPECT_NE(window.List2->grab().toImage(), withoutFocus) << "an empty list shows it too";
  window.Text2->setText(QStringLiteral("mela"));
  Click(window.Command1);
  EXPECT_EQ(Items(window.List1->model()), "Frutto|Cos\u00EC rossa|");
  EXPECT_EQ(Items(window.List2->model()), "Cadde su un fisico|");
  window.Text2->setText(QStringLiteral("MALA"));
  Click(window.Command1);
  EXPECT_EQ(user.beeps, 1);
  EXPECT_EQ(Items(window.List2->model()), "Cadde su un fisico|") << "the lists keep what they had";
  EXPECT_EQ(
      user.TakeTexts(),
      (Texts{
          "La ricerca della definizione \xE8 possibile solo su una parola completata.",
          "La parola MALA non \xE8 ancora stata inserita nell'enciclopedia, in questa versione ci "
          "sono gi\xE0 molte migliaia di parole catalogate con allegata una o pi\xF9 definizioni "
          "ma "
          "cresceranno col tempo! E' possibile editare/aggiungere parole dal men\xF9 della form "
          "Principale 'Utilit\xE0' la voce 'Gestione definizioni' il file telarium1.mdb pu\xF2 "
          "essere "
          "anche modificato/aggiornato con Microsoft Access. \r\nInfine se hai installato Word "
          "oppure se hai una connessione ad Internet puoi provare i 2 bottoni sottostanti."}));

  window.List1->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(window.List1->selectedItems().size(), 1) << "where the keyboard is shows";
  DoubleClickItem(*window.List1, 1);
  EXPECT_EQ(window.Text1->toPlainText(), QStringLiteral("Cos\u00EC rossa"));
  window.Text2->setText(QStringLiteral("AS"));
  Click(window.Command1);
  EXPECT_EQ(Items(window.List1->model()), "Carta|") << "two letters are enough";
  window.Text2->setText(QStringLiteral("ALE"));
  Click(window.Command1);
  EXPECT_EQ(Items(window.List1->model()), "|") << "a family without clues is one empty entry";
  window.List1->setCurrentRow(0);
  QTest::keyClick(window.List1, Qt::Key_Return);
  EXPECT_EQ(window.Text1->toPlainText(), QString());
  EXPECT_TRUE(window.isVisible());
}

TEST_F(TelarDefTest, ErrorOfTheStoreLeavesTheWindowOpen) {
  RecordingWindow main;
  WriteFile("telarium1.mdb", "no database at all, and long enough to look like one of them");
  TelarDef window(given, nullptr);
  Open(window);
  window.Text2->setText(QStringLiteral("MELA"));
  Click(window.Command1);
  EXPECT_EQ(main.shown, std::vector{Modale::Form6});
  EXPECT_EQ(user.TakeTexts(),
            Texts{"Enciclopedia telarium1.mdb: il file non \xE8 un'enciclopedia."});
  EXPECT_TRUE(window.isVisible());
}

TEST_F(TelarDefTest, MaskedSearchListsTheWordsAndAPickBecomesTheWord) {
  TelarDef window(given, nullptr);
  Open(window);
  Click(window.Command3D4);
  EXPECT_EQ(Items(window.Combo1->model()), "MOLA|");
  EXPECT_EQ(window.Label5->text(), QStringLiteral("Trov.: 1"));
  EXPECT_EQ(PuntatoreMouse, PuntatoreFrecciaFissa);
  Click(window.Check3d1[1]);
  EXPECT_EQ(Mask(window), "M__A");
  Click(window.Command3D4);
  EXPECT_EQ(Items(window.Combo1->model()), "MALA|MELA|MOLA|");
  EXPECT_EQ(window.Combo1->currentText(), QStringLiteral("MALA"));
  window.Combo1->setFocus();
  QTest::keyClick(window.Combo1, Qt::Key_Down);
  EXPECT_EQ(window.Text2->text(), QStringLiteral("MELA"));
  window.Label2[0]->setText(QStringLiteral("Z"));
  Click(window.Command3D4);
  EXPECT_EQ(Items(window.Combo1->model()) + window.Combo1->currentText().toStdString(), "");
  EXPECT_EQ(window.Label5->text(), QStringLiteral("Trov.: 0"));
}

TEST_F(TelarDefTest, OtherDictionariesAreSearchedFromAPopup) {
  OpenDictionary({"MIRA", "ROSA"}, "mio & tuo.PRIV");
  OpenDictionary({"MELA", "MOLA"});
  TelarDef window(given, nullptr);
  Open(window);
  Click(window.Command4);
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.menudizionari->isVisible(); }, Patience));
  std::string captions;
  for (const QAction* entry : window.menubrdiz)
    captions += entry->isSeparator() ? "-|" : entry->text().toStdString() + '|';
  EXPECT_EQ(captions,
            "&Annulla|-|LessicoItaliano.dat - (Diz. di sistema)|-|mio && tuo.PRIV - (Diz. "
            "privato)|");
  Click(window.Check3d1[1]);
  window.menubrdiz.back()->trigger();
  EXPECT_EQ(Items(window.Combo1->model()), "MIRA|");
  EXPECT_EQ(dictionary.NomeDizionario(), "LessicoItaliano.dat");
  EXPECT_EQ(dictionary.ContaLunghezza(1), 2);
  window.menudizionari->close();
  Click(window.Command3D4);
  EXPECT_EQ(Items(window.Combo1->model()), "MELA|MOLA|") << "and then the open one as before";
  EXPECT_EQ(dictionary.LeggiParola(1, 4), "MELA");
}

TEST_F(TelarDefTest, AsksWordTheDictionariesOnlineAndItsOwnHelp) {
  RecordingWindow main;
  TelarDef window(given, nullptr);
  Open(window);
  Click(window.Command2);
  EXPECT_EQ(machine.written, Texts{"MO.A"});
  machine.opens = false;
  Click(window.Command2);
  Click(window.Command3);
  EXPECT_EQ(main.calls, Texts{"ApriMenu menuint"});
  Click(window.Command3D3);
  const Texts help = user.TakeTexts();
  ASSERT_EQ(help.size(), 1u);
  for (const char* part : {"vocabolario delle parolecon mascheramento , ad esempio",
                           "quella che ci serve.\r\nUna volta inserita"})
    EXPECT_NE(help[0].find(part), std::string::npos);
}

}  // namespace
}  // namespace telarium
