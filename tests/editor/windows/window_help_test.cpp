#include "editor/windows/window_help.h"

#include <set>

#include "auxiliary/guide.h"
#include "clues/windows/frmParole.h"
#include "editor/settings.h"
#include "editor/windows/modal_windows.h"
#include "support/clue_store.h"
#include "support/telarium_test.h"
#include "support/window_helpers.h"

namespace telarium {
namespace {

class WindowHelp : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    workingFolder_ = std::filesystem::current_path();
    ImpostazioniIniziali();
    Draw({"CASA", "A#LE", "SOLE"});
    OpenDictionary({"CASA"});
    MakeStore("CASA\tF\tDimora\n");
    WriteFile("STANDARD.dfc", "*..\r\n.A.\r\n...\r\n-\r\n");
    guide_ = ReadFile(Percorso(TELARIUM_DATA_DIR) / GemelloAiuto);
    WriteFile(GemelloAiuto, guide_);
    QApplication::instance()->installEventFilter(&help_);
  }

  void TearDown() override {
    std::filesystem::current_path(workingFolder_);
    TelariumTest::TearDown();
  }

  // The chapter that F1 opens in a window, if the guide has it.
  std::string ChapterByF1(QWidget& window) {
    machine.opened.clear();
    QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_F1);
    if (machine.opened.size() != 1) return "nothing opened";
    const std::string page = ReadFile(machine.opened[0]);
    const std::string before = std::string(GemelloAiuto) + '#';
    const std::size_t start = page.find(before) + before.size();
    const std::string chapter = page.substr(start, page.find('"', start) - start);
    return guide_.find("id=\"" + chapter + '"') == std::string::npos ? "no " + chapter : chapter;
  }

 private:
  AiutoNelleFinestre help_;
  std::string guide_;
  std::filesystem::path workingFolder_;
};

TEST_F(WindowHelp, F1OpensTheChapterAboutEachWindow) {
  constexpr std::pair<Modale, const char*> windows[] = {
      {Modale::FormNew, "nuovo"},
      {Modale::FormModels, "nuovo"},
      {Modale::Form2, "salvare"},
      {Modale::TelarSav, "salvare"},
      {Modale::Settaggi, "aspetto"},
      {Modale::fONTEN, "aspetto"},
      {Modale::TelarBro, "tabella"},
      {Modale::Form4, "gestione"},
      {Modale::telariummdb, "enciclopedia"},
      {Modale::Form6, "menuutilita"},
      {Modale::Form3, "menuaiuto"},
      {Modale::frmTip, "suggerimenti"},
  };
  static_assert(std::size(windows) == static_cast<int>(Modale::Form3) + 1);
  QWidget main;
  const auto expect = [&](const char* chapter) {
    WhenOpen<FinestraModale>(main, [&, chapter](FinestraModale& window) {
      EXPECT_EQ(ChapterByF1(window), chapter) << window.objectName().toStdString();
      EXPECT_TRUE(window.isVisible());
      window.reject();
    });
  };
  for (const auto& [which, chapter] : windows) {
    expect(chapter);
    MostraFinestraModale(which, main);
  }
  expect("editor");
  EXPECT_FALSE(MostraTelarDef({.testo = {"CASA", ""}, .numero = 1}, main));
  frmParole table(nullptr);
  Open(table);
  EXPECT_EQ(ChapterByF1(table), "enctabella");
  // Marks of an address in the folder's name are none.
  const Percorso folder = InFolder("a#1% \xC3\xA8");
  std::filesystem::create_directory(folder);
  std::filesystem::rename(InFolder(GemelloAiuto), folder / GemelloAiuto);
  CartellaProgramma = folder;
  EXPECT_EQ(ChapterByF1(table), "enctabella");
  const QString page = QString::fromStdString(ReadFile(machine.opened[0]));
  const QUrl url(page.section(u'"', 7, 7));
  EXPECT_EQ(url.toLocalFile().toStdString(), (folder / GemelloAiuto).string());
  table.grdDataGrid->edit(table.grdDataGrid->currentIndex());
  EXPECT_EQ(ChapterByF1(table), "enctabella") << "from a cell too";
}

TEST_F(WindowHelp, WithoutAChapterOrAPageTheWholeGuideOpens) {
  QDialog other;
  other.show();
  EXPECT_EQ(ChapterByF1(other), "nothing opened") << "none of the program's windows";
  std::filesystem::rename(InFolder(GemelloAiuto), InFolder("altrove"));
  ApriGuida("tabella");
  EXPECT_EQ(machine.opened, std::vector{InFolder(FileAiuto).string()});
  machine.opens = false;
  ApriGuida("tabella");
  EXPECT_EQ(user.TakeTexts().size(), 1u);
}

}  // namespace
}  // namespace telarium
