#include <filesystem>
#include <sys/stat.h>

#include "crossworddialogs/windows/Form2.h"
#include "crossworddialogs/windows/TelarSav.h"
#include "editor/settings.h"
#include "model/crossword_file.h"
#include "model/state.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

constexpr const char* Missing = "il file o la cartella non esiste";

class FileWindows : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    ImpostazioniIniziali();
    fs::create_directory(archive);
    Save("Beta.tlrm", {"SOLE", "...."});
    Save("alfa.TLRM", {"CA#A"});
    WriteFile("Archivio cruciverba/note.txt", "no crossword");
    ASSERT_EQ(::mkfifo((archive / "pipe.tlrm").c_str(), 0600), 0);
    Draw({"OGGI"});
  }

  void Save(const char* name, const std::vector<std::string>& rows) const {
    Draw(rows);
    ASSERT_TRUE(ScriviCruciverba(archive / name));
  }

  // The folder of the tree that has this name.
  static void GoTo(AlberoCartelle& tree, const QString& name) {
    const auto found = tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(found.isEmpty());
    tree.setCurrentItem(found.front());
    QTest::keyClick(&tree, Qt::Key_Return);
  }

  const Percorso archive = InFolder("") / "Archivio cruciverba";
};

TEST_F(FileWindows, OpenShowsTheFirstFileAndTakesTheSelectedOne) {
  Form2 window(nullptr);
  Open(window);
  EXPECT_EQ(window.File1->count(), 2);
  EXPECT_EQ(window.Text1->text(), QStringLiteral("alfa.TLRM")) << "case ignored";
  EXPECT_EQ(window.Frame1->title(), QStringLiteral("Anteprima: 04x01"));
  EXPECT_EQ(window.StatusBar1->text(), QStringLiteral(" Prova - 05-03-2024 - Crociate Normale"));
  const QImage shown = window.Picture1->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() * 5 / 8, shown.height() / 2), QColor(Qt::black));
  EXPECT_EQ(DrawingOfSchema(), Texts{"OGGI"}) << "a preview leaves the crossword alone";

  QTest::keyClick(window.File1, Qt::Key_Down);
  EXPECT_EQ(window.Frame1->title(), QStringLiteral("Anteprima: 04x02"));
  QTest::keyClick(window.File1, Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(NomeCruciverba, archive / "Beta.tlrm");
  EXPECT_EQ(ModoGriglia, 1);
  EXPECT_EQ(ReadFile(PercorsoIstantanea()), ReadFile(archive / "Beta.tlrm"));
}

TEST_F(FileWindows, OpenTakesATypedNameADoubleClickAndRefusesWhatIsNotThere) {
  Form2 window(nullptr);
  Open(window);
  QTest::keyClicks(window.Text1, QStringLiteral("x"));
  QTest::keyClick(window.Text1, Qt::Key_Return);
  window.Text1->clear();
  Click(window.Command3d1);
  EXPECT_EQ(user.TakeTexts(),
            (Texts{WithCause("Errore: file inesistente!", archive / "alfa.TLRMx", Missing),
                   WithCause("Errore: file inesistente!", archive / "",
                             "il nome \xE8 quello di una cartella")}));
  EXPECT_TRUE(window.isVisible());
  DoubleClickItem(*window.File1, 1);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(NomeCruciverba, archive / "Beta.tlrm");
}

TEST_F(FileWindows, WhatThePreviewRefusesCanBeOpenedAsFarAsTheReaderTakesIt) {
  std::string bytes = ReadFile(archive / "Beta.tlrm");
  bytes.at(bytes.find("m.i.f._.")) = '{';  // "SOLE" as the file holds it, the S a small letter
  Form2 window(nullptr);
  Open(window);
  WriteFile("Archivio cruciverba/alfa.TLRM", bytes);
  window.File1->setCurrentRow(1);
  window.File1->setCurrentRow(0);
  EXPECT_EQ(user.TakeTexts(), Texts{"Tipo di file non valido!"});
  EXPECT_EQ(window.Frame1->title(), QStringLiteral("Anteprima"));
  EXPECT_EQ(window.StatusBar1->text(), QString());
  WriteFile("Archivio cruciverba/alfa.TLRM", "no crossword");
  Click(window.Command3d1);
  EXPECT_EQ(user.TakeTexts().at(0).find("Errore di lettura del file!\n"), 0u);
  EXPECT_EQ(DrawingOfSchema(), Texts{"OGGI"});
  WriteFile("Archivio cruciverba/alfa.TLRM", bytes);
  Click(window.Command3d1);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(NomeCruciverba, archive / "alfa.TLRM");
}

TEST_F(FileWindows, TheListsMoveTogether) {
  fs::create_directories(InFolder(".nascosta/.sotto"));
  fs::create_directory(archive / "vuota");
  Form2 window(nullptr);
  Open(window);
  GoTo(*window.Dir1, QStringLiteral("vuota"));
  EXPECT_EQ(window.File1->count(), 0);
  EXPECT_EQ(window.Dir1->Cartella(), archive / "vuota");
  EXPECT_TRUE(window.isVisible()) << "Enter in the tree opens no crossword";
  GoTo(*window.Dir1, QStringLiteral("Archivio cruciverba"));
  EXPECT_EQ(window.File1->count(), 2);
  EXPECT_TRUE(window.Dir1->findItems(QStringLiteral(".nascosta"), Qt::MatchRecursive).isEmpty());
  ASSERT_TRUE(window.Dir1->Vai(InFolder(".nascosta")));
  EXPECT_EQ(window.Dir1->currentItem()->text(0), QStringLiteral(".nascosta"));
  ASSERT_TRUE(window.Dir1->Vai(archive));

  fs::remove(archive / "vuota");
  GoTo(*window.Dir1, QStringLiteral("vuota"));
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  EXPECT_EQ(window.Dir1->Cartella(), archive);

  const int drive = window.Drive1->currentIndex();
  EXPECT_GE(drive, 0);
  window.Drive1->insertItem(0, QStringLiteral("X"), QByteArray("/nowhere"));
  window.Drive1->setCurrentIndex(0);
  emit window.Drive1->activated(0);
  EXPECT_EQ(user.TakeTexts(),
            Texts{WithCause("Errore di lettura dal drive specificato", "/nowhere", Missing)});
  EXPECT_EQ(window.Dir1->Cartella(), archive);
  EXPECT_EQ(window.Drive1->currentIndex(), drive + 1) << "the folder's own, whatever comes before";
  EXPECT_EQ(window.File1->count(), 2);
}

TEST_F(FileWindows, AnotherDriveTakesAllListsAlong) {
  fs::create_directories(InFolder("disco/dentro"));
  fs::copy(archive / "Beta.tlrm", InFolder("disco/altro.tlrm"));
  Form2 open(nullptr);
  TelarSav save(nullptr);
  for (FinestraArchivio* window :
       {static_cast<FinestraArchivio*>(&open), static_cast<FinestraArchivio*>(&save)}) {
    Open(*window);
    window->Drive1->addItem(QStringLiteral("X"),
                            QByteArray::fromStdString(InFolder("disco").string()));
    window->Drive1->setCurrentIndex(window->Drive1->count() - 1);
    emit window->Drive1->activated(window->Drive1->count() - 1);
    EXPECT_EQ(window->Dir1->Cartella(), InFolder("disco"));
    EXPECT_EQ(window->File1->Cartella(), InFolder("disco"));
    EXPECT_EQ(window->File1->count(), 1);
    window->File1->setCurrentRow(0);
    EXPECT_EQ(window->Text1->text(), QStringLiteral("altro.tlrm"));
    window->reject();
  }
}

TEST_F(FileWindows, TitlesAndCaptionsAreThose) {
  Form2 open(nullptr);
  TelarSav save(nullptr);
  const std::pair<QString, const char*> texts[] = {
      {open.windowTitle(), "Telarium  - Apertura layout parole crociate"},
      {open.Frame2->title(), "Cartella"},
      {open.Label4->text(), "Files di cruciverba "},
      {open.Frame3->title(), "Nome file"},
      {open.Frame1->title(), "Anteprima"},
      {open.Command3d2->text(), "&Annulla"},
      {save.windowTitle(), "Telarium  - Salvataggio"},
      {save.Label3->text(), "Cartelle"},
      {save.Label1->text(), "Nome File"},
      {save.Frame1->title(), "Dati per il salvataggio : "},
      {save.Label2->text(), "Dati autore:"},
      {save.Frame2->toolTip(), "Inserire autore/indirizzo/e-mail ecc."},
      {save.Command3d2->text(), "&Annulla"}};
  for (const auto& [shown, expected] : texts)
    EXPECT_EQ(shown.toStdString(), expected);
}

TEST_F(FileWindows, AFolderThatGoesAwayCostsAMessageAndAnEmptyOneNothing) {
  Form2 window(nullptr);
  Open(window);
  fs::remove_all(archive);
  window.File1->setCurrentRow(1);
  Click(window.Command3d1);
  EXPECT_EQ(user.TakeTexts(),
            (Texts{WithCause("Nessun file di cruciverba trovato!", archive / "Beta.tlrm", Missing),
                   WithCause("Errore: file inesistente!", archive / "Beta.tlrm", Missing)}));
  Form2 empty(nullptr);
  Open(empty);  // makes the folder again, which is no fault
  EXPECT_EQ(empty.File1->count(), 0);
  EXPECT_EQ(empty.Text1->text(), QString());
  EXPECT_EQ(empty.Frame1->title(), QStringLiteral("Anteprima"));
  TelarSav save(nullptr);
  Open(save);
  fs::remove_all(archive);
  save.Text1->setText(QStringLiteral("nuovo"));
  QTest::keyClick(save.Text1, Qt::Key_Return);
  EXPECT_EQ(user.TakeTexts(), Texts{WithCause("Errore di nome file o accesso al disco!",
                                              archive / "nuovo.tlrm", Missing)});
  EXPECT_TRUE(save.isVisible());
}

TEST_F(FileWindows, ANewSizeOfTheWindowOnlyDrawsAnew) {
  WriteFile("Archivio cruciverba/aaa.tlrm", "no crossword");
  Form2 window(nullptr);
  Open(window);
  EXPECT_EQ(user.TakeTexts(), Texts{"Formato del file non valido!"});
  window.Text1->setText(QStringLiteral("scritto a mano"));
  for (const int width : {700, 650}) {
    window.resize(width, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.width() == width; }, Patience));
  }
  EXPECT_EQ(window.Text1->text(), QStringLiteral("scritto a mano"));
  const int wide = window.minimumSizeHint().width();
  Save("largo.tlrm", {"CA"});
  std::string bytes = ReadFile(archive / "largo.tlrm");
  bytes.insert(bytes.find("02x01") + 5, 20'000, 'W');
  WriteFile("Archivio cruciverba/largo.tlrm", bytes);
  window.File1->Vai(archive);
  window.File1->Scegli("largo.tlrm");
  EXPECT_LE(window.minimumSizeHint().width(), wide) << "no text of a file widens the window";
}

TEST_F(FileWindows, ANameThatNoTextCanHoldIsSavedUnderItself) {
  Save("caff\xE8.tlrm", {"CA"});
  fs::remove(archive / "Beta.tlrm");
  fs::remove(archive / "alfa.TLRM");
  Form2 open(nullptr);
  Open(open);
  Click(open.Command3d1);
  EXPECT_EQ(NomeCruciverba, archive / "caff\xE8.tlrm");
  TelarSav save(nullptr);
  Open(save);
  user.Answer(Risposta::Ok);
  QTest::keyClick(save.Text1, Qt::Key_Return);
  EXPECT_EQ(user.TakeTexts().size(), 1u) << "it is there already";
  EXPECT_EQ(save.File1->count(), 1);
}

TEST_F(FileWindows, SaveTakesNameAndAuthor) {
  SetName(NomeMaiSalvato);
  TelarSav window(nullptr);
  Open(window);
  EXPECT_EQ(window.Text1->selectedText(), QStringLiteral("NuovoCruciverba.tlrm"));
  EXPECT_EQ(window.Text2->text(), QStringLiteral("Prova"));
  ClickItem(*window.File1, 1);
  EXPECT_EQ(window.Text1->text(), QStringLiteral("Beta.tlrm"));
  window.Text2->setFocus();
  EXPECT_EQ(window.Text2->selectedText(), window.Text2->text()) << "whole when it is reached";
  window.Text2->setSelection(0, 2);
  QFocusEvent fromItsMenu(QEvent::FocusIn, Qt::PopupFocusReason);
  QCoreApplication::sendEvent(window.Text2, &fromItsMenu);
  EXPECT_EQ(window.Text2->selectedText(), QStringLiteral("Pr"));
  window.Text1->setText(QStringLiteral("Citt\u00E0"));
  window.Text2->setText(QStringLiteral("Nicol\u0103"));  // no such letter in the code page
  Click(window.Command3d1);
  EXPECT_EQ(user.TakeTexts().size(), 1u);
  EXPECT_EQ(window.focusWidget(), window.Text2);
  EXPECT_FALSE(fs::exists(archive / "Città.tlrm"));
  window.Text2->setText(QStringLiteral("Nicol\u00F2, Forl\u00EC"));
  QTest::keyClick(window.Text2, Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(NomeCruciverba, archive / "Città.tlrm");
  EXPECT_TRUE(ReadFile(archive / "Città.tlrm").starts_with("Autore     : Nicol\xF2, Forl\xEC\r\n"));
}

TEST_F(FileWindows, TheFolderChosenForASaveCountsUnlessAFullNameIsTyped) {
  const Percorso chosen = archive / "scelta";
  fs::create_directory(chosen);
  const Percorso typed = InFolder("battuto.tlrm");
  for (const Percorso& name : {Percorso(), typed}) {
    SetName(InFolder("caff\xE8.tlrm"));  // elsewhere, and no text
    TelarSav window(nullptr);
    Open(window);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Telarium  - Salvataggio"));
    EXPECT_TRUE(window.Text1->text().contains(u'/'));
    if (!name.empty()) window.Text1->setText(QString::fromStdString(name.string()));
    GoTo(*window.Dir1, QStringLiteral("scelta"));
    Click(window.Command3d1);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(NomeCruciverba, name.empty() ? chosen / "caff\xE8.tlrm" : typed);
    EXPECT_TRUE(fs::exists(NomeCruciverba));
  }
}

TEST_F(FileWindows, TheKeyboardReachesEverything) {
  Form2 open(nullptr);
  Open(open);
  EXPECT_EQ(TabOrder(open), "File1 Text1 Command3d1 Command3d2 Drive1 Dir1 ");
  ExpectNamedControls(open);
  TelarSav save(nullptr);
  Open(save);
  EXPECT_EQ(TabOrder(save), "Text1 Text2 Command3d1 Command3d2 Drive1 Dir1 File1 ");
  ExpectNamedControls(save);
  save.Command3d2->setFocus();
  QTest::keyClick(save.Command3d2, Qt::Key_Return);
  EXPECT_FALSE(save.isVisible());
  EXPECT_EQ(NomeCruciverba, "prova.tlrm") << "the button that has the focus is meant";
}

}  // namespace
}  // namespace telarium
