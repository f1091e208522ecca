#include "dictionary/windows/Form4.h"

#include <QClipboard>
#include <QLayout>

#include "editor/commands.h"
#include "platform/codepage.h"
#include "support/numbered_words.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

using Words = std::vector<std::string>;

const std::string Rebuilding =
    "Attenzione non interrompere assolutamente la fase di creazione del dizionario! Su computer "
    "lenti questa operazione potrebbe durare diversi minuti. Si desidera ricreare il dizionario "
    "principale?";

class Form4Test : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    workingFolder_ = std::filesystem::current_path();
    OpenDictionary({"NAVE"}, "mio.priv");
    OpenDictionary({"GAT"}, "LessicoInglese.dat");
    OpenDictionary({"CASA", "SOLE", "APE", "ABBACCHI", "ZUCCHINA"});
    window = std::make_unique<Form4>(nullptr);
    Open(*window);
  }

  void TearDown() override {
    window.reset();
    std::filesystem::current_path(workingFolder_);
    TelariumTest::TearDown();
  }

  static void OpenFile(ListaFile& list, const QString& name) {
    const auto found = list.findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    DoubleClickItem(list, list.row(found[0]));
  }

  void OpenItalian() { OpenFile(*window->File1, QStringLiteral("LessicoItaliano.dat")); }

  ElencoDiParole& List(int length) {
    return *window->Combo1.at(static_cast<std::size_t>(length - MinLunghezza));
  }

  std::string Count(int length) {
    return window->Label2.at(static_cast<std::size_t>(length - MinLunghezza))->text().toStdString();
  }

  std::string Shown(int length) {
    std::string words;
    const QAbstractItemModel& model = *List(length).Elenco->model();
    for (int row = 0; row < model.rowCount(); ++row)
      words += model.index(row, 0).data().toString().toStdString() + ' ';
    return words;
  }

  // The words of a length in the file of the open dictionary.
  Words OnDisk(int length) {
    Words words;
    ApriDizionario(dictionary);
    for (int n = 1; n <= dictionary.ContaLunghezza(length - MinLunghezza); ++n)
      words.push_back(dictionary.LeggiParola(static_cast<std::int16_t>(n), length));
    return words;
  }

  void Add(const QString& keys) {
    Click(window->Command1);
    QTest::keyClicks(window->Text1, keys);
    Click(window->Command3);
  }

  void Rebuild() {
    user.Answer(Risposta::Ok);
    Click(window->Command4);
  }

  std::string Enabled() const {
    std::string names;
    for (const QPushButton* button : window->findChildren<QPushButton*>())
      if (button->isEnabled()) names += button->objectName().back().toLatin1();
    return names;
  }

  std::unique_ptr<Form4> window;

 private:
  std::filesystem::path workingFolder_;
};

std::string Red(const QLabel& label) {
  return label.palette().color(QPalette::WindowText).name().toStdString();
}

TEST_F(Form4Test, OpensEmptyAndReadsWhatIsChosen) {
  ExpectNamedControls(*window);
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(InFolder("")));
  EXPECT_EQ(window->Label3->text(),
            QStringLiteral("Scegli il dizionario disponibile qua a fianco da aprire --->"));
  EXPECT_EQ(window->Label9->text(), QStringLiteral("LessicoItaliano"));
  EXPECT_EQ(window->Label1[12]->text(), QStringLiteral("15 Caratt."));
  EXPECT_EQ(Shown(4) + Count(4), "");
  EXPECT_EQ(Enabled(), "3672");
  EXPECT_TRUE(window->Text1->isHidden() && window->Command3->isHidden());
  EXPECT_EQ(window->File2->count(), 1);

  OpenItalian();  // it is the open one, but no words are loaded yet
  EXPECT_EQ(Shown(4), "CASA SOLE ");
  EXPECT_EQ(Count(4), "(2) parole");
  EXPECT_EQ(Count(5), "(0) parole");
  EXPECT_EQ(List(8).Testo->text(), QStringLiteral("ABBACCHI"));
  EXPECT_EQ(window->Label4->text(), QStringLiteral("5"));
  EXPECT_EQ(window->Label3->text(), QString());
  EXPECT_EQ(Enabled(), "13548672");

  OpenFile(*window->File1, QStringLiteral("LessicoInglese.dat"));
  EXPECT_EQ(dictionary.LinguaDizionario(), 2);
  EXPECT_EQ(Shown(3) + Shown(4), "GAT ");
  QTest::keyClick(window->File2, Qt::Key_Down);
  QTest::keyClick(window->File2, Qt::Key_Return);
  EXPECT_EQ(dictionary.LinguaDizionario(), 4);
  EXPECT_EQ(dictionary.NomeDizionario(), "mio.priv");
  EXPECT_EQ(Shown(4), "NAVE ");
  EXPECT_EQ(window->Label9->text(), QStringLiteral("mio"));
}

TEST_F(Form4Test, TheOpenDictionaryIsSelectedAtTheStartAndCanBeRead) {
  EXPECT_EQ(window->File1->Scelto(), "LessicoItaliano.dat");
  QTest::keyClick(window->File1, Qt::Key_Return);
  EXPECT_EQ(Shown(4), "CASA SOLE ");
  OpenFile(*window->File2, QStringLiteral("mio.priv"));
  EXPECT_FALSE(window->File1->Scelto());
  window = std::make_unique<Form4>(nullptr);
  Open(*window);
  EXPECT_EQ(window->File2->Scelto(), "mio.priv");
  CambiaLingua(4);  // which a private one counts as
  EXPECT_EQ(dictionary.NomeDizionario(), "mio.priv");
  EXPECT_TRUE(window->File2->hasFocus());
  EXPECT_FALSE(window->Command4->isEnabled()) << "a rebuild would empty it";
  OpenFile(*window->File2, QStringLiteral("mio.priv"));
  EXPECT_EQ(Shown(4), "NAVE ");
  Add(QStringLiteral("rete"));
  OpenFile(*window->File2, QStringLiteral("mio.priv"));
  EXPECT_EQ(Shown(4), "NAVE RETE ") << "it is read: what was changed stays";
  user.TakeTexts();
}

TEST_F(Form4Test, FitsASmallScreenWhateverItTells) {
  OpenDictionary({"CASA"}, std::string(80, 'x') + ".priv");
  window->File2->Vai(InFolder(""));
  OpenFile(*window->File2, QString(80, u'x') + QStringLiteral(".priv"));
  Click(window->Command1);
  for (const QSize size : {QSize(790, 560), QSize(960, 680)}) {  // of 800 x 600, of 1366 x 768
    SCOPED_TRACE(size.width());
    window->resize(size);
    EXPECT_EQ(window->size(), size);
    std::vector<QRect> places;
    for (const QWidget* control : window->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      places.push_back(control->geometry());
      EXPECT_TRUE(window->rect().contains(places.back())) << control->objectName().toStdString();
    }
    for (auto one = places.begin(); one != places.end(); ++one) {
      for (auto other = one + 1; other != places.end(); ++other)
        EXPECT_FALSE(one->intersects(*other));
    }
    for (const ElencoDiParole* list : window->Combo1)
      EXPECT_GE(list->Elenco->viewport()->height(), 4 * list->Elenco->sizeHintForRow(0));
    const QPoint button = window->Command1->pos();
    for (const char16_t* status :
         {u"", u"Una", u"Una riga \u00E8 troppo corta per tutto quel che c'\u00E8 da dire"}) {
      window->Label3->setText(QString::fromUtf16(status));
      window->layout()->activate();
      EXPECT_EQ(window->Command1->pos(), button);
    }
  }
}

TEST_F(Form4Test, TheBarIsYellowWhereALengthHasNoWordsYet) {
  OpenItalian();  // which has none of 15 letters
  const QImage bar = window->Picture1->grab().toImage();
  EXPECT_EQ(bar.pixelColor(bar.width() / 2, bar.height() / 2), QColor(Qt::yellow));
}

TEST_F(Form4Test, TheKeyboardDoesItAll) {
  OpenItalian();
  List(4).Testo->setFocus();
  List(4).Testo->clear();
  QTest::keyClicks(List(4).Testo, QStringLiteral("so"));
  QTest::keyClick(List(4).Testo, Qt::Key_Down);
  EXPECT_TRUE(List(4).Elenco->hasFocus());
  EXPECT_EQ(List(4).Scelta(), 1u) << "where the letters lead";
  EXPECT_EQ(List(4).Testo->text(), QStringLiteral("SOLE"));
  List(4).Testo->setFocus();
  QTest::keyClick(List(4).Testo, Qt::Key_Up);
  EXPECT_EQ(List(4).Testo->text(), QStringLiteral("CASA"));
  window->Command1->setFocus();
  QTest::keyClick(window->Command1, Qt::Key_Return);
  ASSERT_TRUE(window->Text1->hasFocus());
  QTest::keyClicks(window->Text1, QStringLiteral("casa"));
  QGuiApplication::clipboard()->setText(QStringLiteral("li"));
  QTest::keySequence(window->Text1, QKeySequence::Paste);
  EXPECT_EQ(window->Text1->text(), QStringLiteral("CASALI"));
  QTest::keySequence(window->Text1, QKeySequence::Undo);
  EXPECT_TRUE(QStringLiteral("CASA").startsWith(window->Text1->text()))
      << window->Text1->text().toStdString();
}

TEST_F(Form4Test, WordsAreAddedAndDeletedInTheListsAlone) {
  OpenItalian();
  const std::string before = ReadFile(dictionary.PercorsoDizionario());
  Click(window->Command1);
  EXPECT_TRUE(window->Text1->hasFocus());
  QTest::keyClicks(window->Text1, QStringLiteral("ba4 n"));
  QTest::sendKeyEvent(QTest::Click, window->Text1, Qt::Key_Egrave, QStringLiteral("è"),
                      Qt::NoModifier);
  EXPECT_EQ(window->Text1->text(), QStringLiteral("BAN"));
  QTest::keyClick(window->Text1, Qt::Key_Return);
  EXPECT_EQ(user.TakeTexts(),
            Words{std::string("La parola 'BAN' è stata momentaneamente aggiunta al dizionario, "
                              "cliccare sul bottone 'Crea dizionario' per la ricostruzione "
                              "definitiva sul disco."_cp)});
  EXPECT_EQ(Shown(3) + Count(3), "APE BAN (2) Parole");
  EXPECT_EQ(Red(*window->Label2[0]) + Red(*window->Label4), "#800000#800000");
  EXPECT_NE(Red(*window->Label2[1]), "#800000");
  EXPECT_EQ(window->Label4->text(), QStringLiteral("6"));
  EXPECT_TRUE(window->Text1->isHidden());

  Add(QStringLiteral("ban"));
  EXPECT_EQ(user.TakeTexts(), Words{std::string("La parola 'BAN' esiste già nel dizionario."_cp)});
  EXPECT_TRUE(window->Text1->isVisible() && window->Command3->isVisible());
  EXPECT_EQ(window->Text1->text(), QString());
  EXPECT_EQ(Count(3), "(2) Parole");
  const std::string length =
      "Nel dizionario sono ammesse solamente parole formate da 3 a 15 caratteri.";
  Add(QStringLiteral("BA"));
  EXPECT_TRUE(window->Text1->isHidden());
  Add(QString(16, u'A'));
  EXPECT_EQ(user.TakeTexts(), (Words{length, length}));

  Click(window->Command5);  // nothing is selected
  ClickItem(*List(4).Elenco, 1);
  EXPECT_EQ(List(4).Testo->text(), QStringLiteral("SOLE"));
  user.Answer(Risposta::Annulla);
  Click(window->Command5);
  EXPECT_EQ(Shown(4), "CASA SOLE ");
  user.Answer(Risposta::Ok);
  Click(window->Command5);
  EXPECT_EQ(user.TakeTexts(),
            (Words{"Si desidera veramente eliminare la parola: SOLE",
                   "Si desidera veramente eliminare la parola: SOLE",
                   "Parola eliminata, cliccare su 'Ricostruzione dizionario' per la ricostruzione "
                   "effettiva del dizionario"}));
  EXPECT_EQ(Shown(4) + Count(4), "CASA (1) Parole");
  EXPECT_EQ(window->Label4->text(), QStringLiteral("5"));
  Click(window->Command5);  // and not the next one either
  EXPECT_EQ(ReadFile(dictionary.PercorsoDizionario()), before);
}

TEST_F(Form4Test, TypingFindsAWord) {
  OpenItalian();
  List(4).Testo->clear();
  QTest::keyClicks(List(4).Testo, QStringLiteral("so"));
  EXPECT_FALSE(List(4).Scelta());
  QTest::keyClicks(List(4).Testo, QStringLiteral("le"));
  EXPECT_EQ(List(4).Scelta(), 1u);
  user.Answer(Risposta::Ok);
  Click(window->Command5);
  EXPECT_EQ(user.TakeTexts().at(0), "Si desidera veramente eliminare la parola: SOLE");
}

TEST_F(Form4Test, RebuildWritesWhatTheListsHold) {
  OpenItalian();
  const std::string before = ReadFile(dictionary.PercorsoDizionario());
  user.Answer(Risposta::Annulla);
  Click(window->Command4);
  EXPECT_EQ(user.TakeTexts(), (Words{Rebuilding, "Operazione annulata."}));
  Rebuild();
  EXPECT_EQ(FirstDifference(ReadFile(dictionary.PercorsoDizionario()), before), "");
  EXPECT_EQ(window->Label3->text(), QStringLiteral("Dizionario riscritto correttamente"));
  EXPECT_EQ(Count(4), "(2) Parole");

  Add(QStringLiteral("BASE"));
  user.whileYielding = [&] {
    EXPECT_EQ(Enabled(), "");
    EXPECT_FALSE(window->File1->isEnabled());
    window->close();
    EXPECT_TRUE(window->isVisible()) << "a rebuild has to come to its end";
  };
  Rebuild();
  user.whileYielding = {};
  EXPECT_EQ(OnDisk(4), (Words{"BASE", "CASA", "SOLE"}));
  EXPECT_EQ(dictionary.ContaLunghezza(1), 3);
  EXPECT_EQ(Enabled(), "13548672");
  EXPECT_EQ(Red(*window->Label4), "#800000") << "red until the dialog closes";
  EXPECT_EQ(user.TakeTexts().size(), 3u);
}

TEST_F(Form4Test, RefusedAndFailedRebuildsLeaveTheOldFile) {
  OpenItalian();
  const std::string before = ReadFile(dictionary.PercorsoDizionario());
  std::filesystem::create_directory(InFolder("LESSICO.new"));  // it cannot be made there
  Rebuild();
  EXPECT_EQ(ReadFile(dictionary.PercorsoDizionario()), before);
  EXPECT_TRUE(user.TakeTexts().at(1).starts_with("Impossibile scrivere il dizionario Lessico"));
  EXPECT_EQ(window->Label3->text(), QStringLiteral("Il dizionario sul disco resta com'era"));
  EXPECT_EQ(Shown(4) + Count(4), "CASA SOLE (2) Parole");
  std::filesystem::remove(InFolder("LESSICO.new"));
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length)
    WriteFile(std::to_string(length) + ".txt", "");
  std::string most;
  for (const std::string& word : NumberedWords(32'200, 8))
    most += word + "\n";
  WriteFile("8.txt", most);
  Click(window->Command8);
  List(8).Aggiungi(NumberedWords(33'000, 8));  // of which the import brought all but 800
  Rebuild();
  EXPECT_EQ(user.TakeTexts().at(1),
            "Impossibile scrivere il dizionario LessicoItaliano.dat: 33.000 parole di 8 lettere, e "
            "ne sono ammesse al massimo 32.767.");
  EXPECT_EQ(ReadFile(dictionary.PercorsoDizionario()), before);
  EXPECT_EQ(Enabled(), "13548672");
}

TEST_F(Form4Test, ImportReplacesTheListsUntilAFileIsMissing) {
  const std::string missing =
      "Per usare questa utility bisogna prima preparare una serie di files di testo 3.txt, 4.txt, "
      "5.txt .... 15.txt contenenti le parole che si vogliono importare";
  OpenItalian();
  Click(window->Command8);
  EXPECT_EQ(user.TakeTexts(),
            Words{WithCause(missing, InFolder("3.txt"), "il file o la cartella non esiste")});
  EXPECT_EQ(Shown(3) + Count(3), "(1) parole");
  EXPECT_EQ(Shown(4), "CASA SOLE ");
  EXPECT_EQ(window->Label4->text(), QStringLiteral("5"));

  WriteFile("3.txt", "UVA\r\nape\r\n\r\nLUNGA\r\nAPE\r\nUVA\r\n");
  for (int length = 4; length <= MaxLunghezza; ++length)
    WriteFile(std::to_string(length) + ".txt", "");
  Click(window->Command8);
  EXPECT_EQ(Shown(3), "APE ape LUNGA UVA UVA ");
  EXPECT_EQ(Count(3), "(6) parole");
  EXPECT_EQ(Shown(4), "");
  Rebuild();
  EXPECT_EQ(OnDisk(3), (Words{"APE", "ape", "UVA"}));
  EXPECT_EQ(user.TakeTexts(), Words{Rebuilding});
}

TEST_F(Form4Test, PrivateDictionariesAreMadeOpenedAndDeleted) {
  OpenItalian();
  user.AnswerText(std::nullopt);
  Click(window->Command6);
  EXPECT_EQ(user.requests.back().richiesta,
            "Inserire nome del dizionario privato che si vuole creare :");
  user.AnswerText("nuovo");
  Click(window->Command6);
  EXPECT_EQ(dictionary.NomeDizionario(), "nuovo.priv");
  EXPECT_EQ(dictionary.LinguaDizionario(), 4);
  EXPECT_EQ(std::filesystem::file_size(InFolder("nuovo.priv")), 0u);
  EXPECT_EQ(Shown(4) + Count(4), "");
  EXPECT_EQ(window->File2->count(), 2);
  Rebuild();  // of no words at all
  EXPECT_EQ(window->Label3->text(), QStringLiteral("Dizionario riscritto correttamente"));
  EXPECT_EQ(std::filesystem::file_size(InFolder("nuovo.priv")), 455u);
  EXPECT_EQ(OnDisk(3), Words{});
  Add(QStringLiteral("uva"));
  EXPECT_EQ(Count(3), "(1) Parole");
  Rebuild();
  EXPECT_EQ(OnDisk(3), Words{"UVA"});
  EXPECT_EQ(std::filesystem::file_size(InFolder("nuovo.priv")), 455u);
  user.TakeTexts();

  OpenItalian();
  user.AnswerText("MIO");  // there is one, in small letters
  Click(window->Command6);
  EXPECT_EQ(dictionary.NomeDizionario(), "mio.priv");
  EXPECT_EQ(dictionary.LinguaDizionario(), 4);
  EXPECT_EQ(Shown(4) + Count(4), "NAVE (1) parole");
  Add(QStringLiteral("RETE"));
  user.AnswerText("mio");  // it is open, with a change that is not written yet
  Click(window->Command6);
  EXPECT_EQ(Shown(4), "NAVE RETE ");
  user.TakeTexts();

  for (const char* name : {"../fuori", "?"}) {
    user.AnswerText(name);
    Click(window->Command6);
    EXPECT_EQ(user.TakeTexts(),
              Words{WithCause("Nome del file specificato NON valido oppure disco di sola lettura.",
                              name, "il nome ha segni non ammessi")});
  }
  std::filesystem::create_directory(InFolder("cartella.priv"));
  user.AnswerText("cartella");
  Click(window->Command6);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  EXPECT_EQ(dictionary.NomeDizionario(), "mio.priv");

  window->File2->Scegli("mio.priv");
  Click(window->Command7);
  EXPECT_EQ(user.TakeTexts(), Words{"Dizionario mio.priv aperto in questo momento, chiuderlo e "
                                    "selezionarne un altro prima di cancellarlo."});
  const std::string question(
      "Si desidera veramente cancellare il dizionario privato : nuovo.priv?  -  Questa operazione "
      "è irreversibile quindi il file non potrà più essere ripristinato."_cp);
  window->File2->Scegli("nuovo.priv");
  user.Answer(Risposta::Annulla);
  Click(window->Command7);
  user.Answer(Risposta::Ok);
  Click(window->Command7);
  EXPECT_EQ(user.TakeTexts(), (Words{question, question}));
  EXPECT_FALSE(std::filesystem::exists(InFolder("nuovo.priv")));
  EXPECT_EQ(window->File2->count(), 1);
  Click(window->Command7);  // nothing is selected

  OpenItalian();
  window->File2->Scegli("mio.priv");
  std::filesystem::remove(InFolder("mio.priv"));
  user.Answer(Risposta::Ok);
  Click(window->Command7);
  EXPECT_EQ(user.TakeTexts().back(),
            "Impossibile cancellare il dizionario personale : mio.priv - Disco/File probabile sola "
            "lettura.");
}

TEST_F(Form4Test, AFileThatIsGoneChangesNothing) {
  OpenItalian();
  EXPECT_TRUE(window->File1->hasFocus()) << "where it was before the reading";
  EXPECT_FALSE(window->File2->Scelto()) << "a click on the command beside it would delete that one";
  std::filesystem::remove(InFolder("mio.priv"));
  OpenFile(*window->File2, QStringLiteral("mio.priv"));
  EXPECT_EQ(user.TakeTexts(), Words{std::string("Il dizionario mio.priv non c'è più."_cp)});
  EXPECT_EQ(dictionary.NomeDizionario(), "LessicoItaliano.dat");
  EXPECT_EQ(Shown(4), "CASA SOLE ");
  EXPECT_EQ(window->File2->count(), 0);
}

TEST_F(Form4Test, ExitStopsAReading) {
  const auto full = NumberedWords(32'767, 8);
  OpenDictionary(full, "LessicoLatino.dat");
  window->File1->Vai(InFolder(""));
  bool clicked = false, reading = false;
  user.whileYielding = [&] {
    if (std::exchange(clicked, true)) return;
    reading = window->Label3->text() ==
              QStringLiteral("In corso la lettura del dizionario LessicoLatino.dat ...");
    EXPECT_FALSE(window->File1->isEnabled() || window->Command4->isEnabled());
    Click(window->Command2);
  };
  OpenFile(*window->File1, QStringLiteral("LessicoLatino.dat"));
  EXPECT_TRUE(reading);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Shown(8), "");
  EXPECT_EQ(dictionary.NomeDizionario(), "LessicoLatino.dat") << "it stays the open one";
}

}  // namespace
}  // namespace telarium
