#include <csignal>
#include <fstream>
#include <sys/resource.h>

#include "history/history_session.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

class Chronology : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    session = std::make_unique<HistorySession>(InFolder(""), InFolder("passi"));
    session->Write("uno", ContenutoDelFile(DrawnCrossword({"AAAA"})).value());
    session->Write("due", ContenutoDelFile(DrawnCrossword({"BB", "BB"})).value());
  }

  // The first row as a drawing, the file's name, and "*" when it counts as changed.
  std::string Seen() const {
    const StatoDelDocumento& state = session->Document().Stato();
    std::string seen;
    for (int c = 1; c <= state.cruciverba.colonne; ++c)
      seen += CarattereDi(state.cruciverba, {c, 1});
    return seen + ' ' + state.file.nome.filename().string() + (state.modificato ? "*" : "");
  }
  // What is seen after each of some steps, "<" to undo and ">" to redo.
  std::string After(const std::string& steps) {
    std::string seen;
    for (const char step : steps) {
      step == '<' ? session->History().Annulla() : session->History().Ripeti();
      seen += (seen.empty() ? "" : ", ") + Seen();
    }
    return seen;
  }
  std::vector<std::string> LostNames() const {
    std::vector<std::string> names;
    for (const LavoroPerso& lost : session->Lost())
      names.push_back(lost.nome.filename().string());
    return names;
  }
  Percorso JournalOf(const std::string& name) const {
    const auto found = session->History().Archivio().Trova(session->File(name));
    return found ? found->file.Nome() : Percorso();
  }
  void AnHourPasses() const {
    for (const Percorso& journal : Journals()) {
      const Percorso path = InFolder("passi") / journal;
      fs::last_write_time(path, fs::last_write_time(path) - std::chrono::hours(1));
    }
  }
  std::vector<Percorso> Journals() const { return ElencaFile(InFolder("passi"), "*.passi"); }

  std::unique_ptr<HistorySession> session;
};

using Names = std::vector<std::string>;

TEST_F(Chronology, EachCrosswordHasItsLineAndUndoneOpeningsLeadBack) {
  session->Open("uno");
  EXPECT_EQ(session->History().DaAnnullare(), "");
  session->Letter({1, 1}, 'X');
  session->Letter({2, 1}, 'Y');
  EXPECT_EQ(After("<"), "XAAA uno*");
  session->Open("due");
  session->Letter({1, 1}, 'Z');
  EXPECT_EQ(session->History().LineaAperta()->Quanti(), 2u);
  EXPECT_EQ(After("<"), "BB due");
  EXPECT_EQ(session->History().DaAnnullare(), "Apertura di due");
  EXPECT_EQ(After("<"), "XAAA uno*");
  EXPECT_EQ(After("<"), "AAAA uno");
  EXPECT_EQ(After("<"), "AAAA uno");
  // The same way back.
  EXPECT_EQ(After(">"), "XAAA uno*");
  EXPECT_EQ(session->History().DaRipetere(), "Apertura di due");
  EXPECT_EQ(After(">"), "BB due");
  EXPECT_EQ(After(">"), "ZB due*");
  EXPECT_EQ(After(">"), "ZB due*");
  // A change in the former one ends that way; what was undone there before is gone too.
  session->History().VaiA(0);
  EXPECT_EQ(After("<"), "XAAA uno*");
  session->Letter({4, 1}, 'W');
  EXPECT_EQ(After(">"), "XAAW uno*");
  session->Open("due");
  session->New({"..."});
  EXPECT_EQ(After("<"), "BB due");
  EXPECT_EQ(After(">"), "... NuovoCruciverba.tlrm");
}

TEST_F(Chronology, AReopenedFileGoesOnWithItsLine) {
  session->Open("uno");
  session->Letter({1, 1}, 'X');
  session->Save("uno");
  session->Letter({2, 1}, 'Y');
  // A clue where no word starts is in no file, and makes no difference to it.
  session->Document().Modifica("Definizione", [](Cruciverba& crossword) {
    crossword.definizioni.Imposta("sospesa", 3, 1, Orizzontale);
  });
  session->Save("uno");
  session->Letter({3, 1}, 'Z');
  for (const bool restarted : {false, true}) {
    if (restarted) session->Restart();
    session->Open("uno");
    const Linea& line = *session->History().LineaAperta();
    ASSERT_EQ(line.Quanti(), 5u);
    EXPECT_EQ(line.Posto(), 3u);
    EXPECT_EQ(line.Attuale(), session->Value());
    EXPECT_EQ(After(">"), "XYZA uno*");
    EXPECT_EQ(After("<"), "XYAA uno");
    // In the same run there is a crossword before: itself, not saved.
    EXPECT_EQ(After("<"), restarted ? "XYAA uno" : "XYZA uno*");
    EXPECT_EQ(After("<"), restarted ? "XAAA uno*" : "XYAA uno");
  }
}

TEST_F(Chronology, ChangesBehindAnEarlierStepLeadBackToItsCrosswordAlone) {
  session->Open("uno");
  session->Letter({1, 1}, 'X');
  session->Save("uno");
  session->Open("due");
  session->Open("uno");
  session->History().VaiA(0);
  session->Letter({2, 1}, 'Y');  // in place of the step at which it was opened
  session->Letter({3, 1}, 'Z');
  EXPECT_EQ(After("<<<"), "AYAA uno*, AAAA uno*, BB due");
}

TEST_F(Chronology, AFileThatAnotherProgramChangedIsTheNextStep) {
  session->Open("uno");
  session->Letter({1, 1}, 'X');
  session->Restart();
  AnHourPasses();
  session->Write("uno", ContenutoDelFile(DrawnCrossword({"CCCC"})).value());
  session->Open("uno");
  EXPECT_EQ(session->History().DaAnnullare(), "File cambiato da un altro programma");
  EXPECT_EQ(After("<"), "XAAA uno*");
  EXPECT_EQ(After("<"), "AAAA uno*");
  EXPECT_EQ(After(">>"), "XAAA uno*, CCCC uno");
  // A state that the steps do not have any more, of the digest that they know.
  session->History().VaiA(0);
  session->Letter({1, 1}, 'Z');
  session->Restart();
  session->Open("uno");
  EXPECT_EQ(After("<<"), "ZAAA uno*, AAAA uno*");
}

TEST_F(Chronology, ASaveUnderAnotherNameTakesTheLineAlong) {
  session->New({"...."});
  session->Letter({1, 1}, 'X');
  session->Save("tre");
  session->Letter({2, 1}, 'Y');
  session->Save("quattro");
  session->Letter({3, 1}, 'Z');
  session->Restart();
  EXPECT_EQ(LostNames(), Names{"quattro"});
  session->Open("quattro");
  EXPECT_EQ(After("><<<"), "XYZ. quattro*, XY.. quattro, X... quattro*, .... quattro*");
  session->Restart();
  session->Open("tre");
  EXPECT_EQ(After(">"), "XY.. tre*");
  EXPECT_EQ(LostNames(),
            (Names{"quattro", "quattro"}));  // undone in this run, changed in the former
  EXPECT_EQ(Journals().size(), 3u);
}

TEST_F(Chronology, LostWorkIsOfferedOnAlthoughItsFileWasOpenedAgain) {
  for (const bool restarted : {false, true}) {
    const std::string name = restarted ? "uno" : "due";
    session->Open(name);
    session->Letter({1, 1}, 'X');
    session->History().Attendi();
    AnHourPasses();
    if (restarted) session->Restart();
    session->Open(name);
    EXPECT_EQ(session->History().DaRipetere(), "Lettera X");
    session->Letter({1, 1}, 'Y');
    session->Save(name);
    session->Restart();
    ASSERT_EQ(LostNames(), Names{name});
    EXPECT_EQ(CarattereDi(session->Lost()[0].cruciverba, {1, 1}), 'X');
    EXPECT_FALSE(session->History().Archivio().Scarta(session->Lost()[0]));
    session->Open(name);  // with the younger line
    EXPECT_EQ(CarattereDi(session->Value(), {1, 1}), 'Y');
    EXPECT_EQ(session->History().LineaAperta()->Quanti(), 2u);
  }
}

TEST_F(Chronology, LostWorkThatIsRedoneAndSavedIsLostNoMore) {
  for (const bool restarted : {false, true}) {
    const std::string name = restarted ? "uno" : "due";
    session->Open(name);
    session->Letter({1, 1}, 'X');
    if (restarted) session->Restart();
    session->Open(name);
    session->History().Ripeti();
    session->Save(name);
    session->Letter({1, 1}, 'Y');
    session->Save(name);
    session->Restart();
    EXPECT_EQ(LostNames(), Names());
  }
}

TEST_F(Chronology, WhatWasNotSavedIsOfferedUntilItIsSavedOrGivenUp) {
  session->New({"...."});
  session->Restart();
  EXPECT_EQ(Journals().size(), 0u);  // an empty grid is no work
  session->New({"...."});
  session->Letter({1, 1}, 'X');
  session->Open("uno");
  session->Letter({1, 1}, 'Y');
  session->Open("due");
  session->Letter({1, 1}, 'Z');
  session->History().Annulla();
  EXPECT_EQ(LostNames(), Names());  // all of it is open here
  session->Restart();
  EXPECT_EQ(LostNames(), (Names{"uno", "NuovoCruciverba.tlrm"}));

  const std::vector<LavoroPerso> lost = session->Lost();
  EXPECT_TRUE(lost[1].maiSalvato);
  ASSERT_TRUE(session->History().Recupera(lost[1]));
  EXPECT_EQ(Seen(), "X... NuovoCruciverba.tlrm*");
  EXPECT_EQ(LostNames(), Names{"uno"});
  EXPECT_FALSE(session->History().Recupera(lost[1]));  // it is open
  EXPECT_EQ(After("<>"), ".... NuovoCruciverba.tlrm, X... NuovoCruciverba.tlrm*");
  session->Restart();
  EXPECT_EQ(LostNames(), (Names{"uno", "NuovoCruciverba.tlrm"}));
  for (const LavoroPerso& one : lost)
    EXPECT_FALSE(session->History().Archivio().Scarta(one));
  EXPECT_EQ(LostNames(), Names());
  EXPECT_FALSE(session->History().Recupera(lost[1]));
  session->Open("uno");  // given up, not forgotten
  EXPECT_EQ(After(">"), "YAAA uno*");

  // Killed between the save and the note of it.
  session->Restart();
  EXPECT_EQ(LostNames(), Names{"uno"});
  session->Write("uno", ContenutoDelFile(DrawnCrossword({"YAAA"})).value());
  EXPECT_EQ(LostNames(), Names());
  session->Open("uno");
  EXPECT_EQ(session->History().LineaAperta()->Quanti(), 2u);
}

TEST_F(Chronology, AFileThatHoldsAnotherCrosswordIsNoStep) {
  session->Open("uno");
  session->Document().Registra(
      {session->File("uno"), DrawnCrossword({"ZZZZ"}), ImprontaDi("altro"), false});
  EXPECT_FALSE(session->History().LineaAperta()->PostoDelFile());
  session->Letter({1, 1}, 'X');
  EXPECT_EQ(After("<"), "AAAA uno*");
}

TEST_F(Chronology, SeveralStrokesOfOneCommandAreOneStep) {
  session->Open("uno");
  {
    const PassoUnico step(session->Document(), "Riempimento");
    session->Letter({1, 1}, 'X');
    {
      const PassoUnico within(session->Document(), "Parola");
      session->Letter({2, 1}, 'Y');
    }
    session->Letter({3, 1}, 'Z');
  }
  EXPECT_EQ(session->History().DaAnnullare(), "Riempimento");
  EXPECT_EQ(After("<>"), "AAAA uno, XYZA uno*");
  {
    const PassoUnico step(session->Document(), "Riempimento");
    session->Open("due");
  }
  EXPECT_EQ(session->History().DaAnnullare(), "Apertura di due");
}

TEST_F(Chronology, TwoProgramsWithOneCrosswordHaveALineEach) {
  HistorySession other(InFolder(""), InFolder("passi"));
  session->Open("uno");
  other.Open("uno");
  session->Letter({1, 1}, 'X');
  other.Letter({1, 1}, 'Y');
  EXPECT_EQ(Journals().size(), 2u);
  EXPECT_TRUE(session->Lost().empty());
  other.Restart();
  ASSERT_EQ(session->Lost().size(), 1u);
  EXPECT_EQ(CarattereDi(session->Lost()[0].cruciverba, {1, 1}), 'Y');
  // What is in use outlives all limits.
  const auto later = std::chrono::system_clock::now() + std::chrono::days(1000);
  session->History().Archivio().Sfoltisci({std::chrono::days(0), 0, 0},
                                          std::chrono::floor<std::chrono::seconds>(later));
  EXPECT_EQ(Journals().size(), 1u);
  session->Restart();
  EXPECT_EQ(LostNames(), Names{"uno"});
}

TEST_F(Chronology, TheOldestFilesGoButThoseWithLostWorkAndOfNewerVersions) {
  // Ten files, a day apart, the last one the youngest; the third one holds lost work.
  const auto now = std::chrono::file_clock::now();
  for (int i = 0; i < 10; ++i) {
    const std::string name = "file" + std::to_string(i);
    session->Write(name, ContenutoDelFile(DrawnCrossword({"AAAA"})).value());
    session->Open(name);
    session->Letter({1, 1}, 'X');
    if (i != 2) session->Save(name);
    session->Restart();
    for (const Percorso& journal : Journals()) {
      if (fs::last_write_time(InFolder("passi") / journal) > now - std::chrono::hours(1))
        fs::last_write_time(InFolder("passi") / journal, now - std::chrono::days(10 - i));
    }
  }
  const Percorso newer = InFolder("passi") / "0-0.passi";
  std::ofstream(newer) << "tlrmpass"
                       << "\x02" << std::string(3, '\0') << "chi sa";
  fs::last_write_time(newer, now - std::chrono::days(100));

  const auto left = [&](const LimitiDellArchivio& limits) {
    session->History().Archivio().Sfoltisci(
        limits, std::chrono::floor<std::chrono::seconds>(std::chrono::file_clock::to_sys(now)));
    return Journals().size();
  };
  EXPECT_EQ(left({}), 11u);
  EXPECT_EQ(left({std::chrono::days(9)}), 10u);  // the first one is ten days old
  EXPECT_EQ(left({std::chrono::days(30), 5}), 7u);
  const auto bytes = fs::file_size(JournalOf("file9"));
  EXPECT_EQ(left({std::chrono::days(30), 50, 2 * bytes + bytes / 2}), 4u);
  EXPECT_EQ(LostNames(), Names{"file2"});
  EXPECT_EQ(left({std::chrono::days(1), 50, 0}), 1u);
  EXPECT_TRUE(fs::exists(newer));
}

TEST_F(Chronology, DamageAndStrangersInTheFolderCostNothingElse) {
  session->Open("uno");
  session->Letter({1, 1}, 'X');
  session->Letter({2, 1}, 'Y');
  session->Restart();
  const Percorso journal = InFolder("passi") / Journals().at(0);
  fs::resize_file(journal, fs::file_size(journal) - 1);
  const Percorso stranger = fs::path(journal).replace_filename("00-00.passi");
  WriteFile(stranger, std::string(1000, '\xFF'));
  fs::create_directory(journal.string() + ".passi");
  std::error_code error;
  EXPECT_FALSE(FileBloccato::Apri("/dev/null", error));
  ASSERT_EQ(LostNames(), Names{"uno"});
  ASSERT_TRUE(session->History().Recupera(session->Lost()[0]));
  EXPECT_EQ(Seen(), "XAAA uno*");
  // It goes on behind the sound part.
  session->Letter({3, 1}, 'Z');
  session->Restart();
  ASSERT_EQ(session->Lost().size(), 1u);
  EXPECT_EQ(session->Lost()[0].cruciverba, DrawnCrossword({"XAZA"}));
}

TEST_F(Chronology, WhereNothingCanBeWrittenUndoWorksAndItIsToldOnce) {
  WriteFile("passi", "a file in the place of the folder");
  session->Restart();
  session->Open("uno");
  session->Letter({1, 1}, 'X');
  EXPECT_TRUE(session->History().Guasto().starts_with("La cronologia non può essere"_cp));
  EXPECT_EQ(session->History().Guasto(), "");
  session->Letter({2, 1}, 'Y');
  EXPECT_EQ(session->History().Guasto(), "");
  EXPECT_EQ(After("<<>"), "XAAA uno*, AAAA uno, XAAA uno*");
  // The folder can be made again: after a while, thirty looks at the clock, all is written.
  fs::remove(InFolder("passi"));
  for (int i = 0; i < 40; ++i)
    session->Letter({1, 1}, i % 2 ? 'W' : 'V');
  session->Restart();
  EXPECT_EQ(LostNames(), Names{"uno"});
}

TEST_F(Chronology, ASaveUnderAnotherNameThatTheFolderDoesNotTakeKeepsTheFile) {
  session->Open("uno");
  session->Letter({1, 1}, 'X');
  fs::rename(InFolder("passi"), InFolder("altrove"));
  WriteFile("passi", "");
  session->Save("tre");
  session->Letter({2, 1}, 'Y');
  fs::remove(InFolder("passi"));
  fs::rename(InFolder("altrove"), InFolder("passi"));
  session->Restart();
  ASSERT_EQ(LostNames(), Names{"tre"});
  EXPECT_EQ(session->Lost()[0].cruciverba, DrawnCrossword({"XYAA"}));
}

TEST_F(Chronology, AFullDiskKeepsTheStepsThatItHas) {
  session->New({"...."});
  session->Letter({1, 1}, 'A');
  session->History().Attendi();
  // Files of this process may have no more bytes.
  const auto old = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before;
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit full{fs::file_size(InFolder("passi") / Journals().at(0)) + 5, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
  session->Letter({1, 1}, 'B');
  session->History().Attendi();
  const std::string told = session->History().Guasto();
  for (char letter = 'C'; letter <= 'Z'; ++letter)
    session->Letter({1, 1}, letter);
  const std::vector<Percorso> journals = Journals();
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, old);
  EXPECT_TRUE(told.ends_with(".")) << told;
  ASSERT_EQ(journals.size(), 1u);
  const Percorso copy = InFolder("passi") / "copia.passi";
  fs::copy_file(InFolder("passi") / journals[0], copy);
  ASSERT_EQ(session->Lost().size(), 1u);
  EXPECT_EQ(session->Lost()[0].cruciverba, DrawnCrossword({"A..."}));
  fs::remove(copy);
  // When there is room again the whole line comes to the disk after a while.
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    session->Letter({2, 1}, letter);
  session->Restart();
  ASSERT_EQ(session->Lost().size(), 1u);
  EXPECT_EQ(session->Lost()[0].cruciverba, DrawnCrossword({"ZZ.."}));
}

TEST_F(Chronology, ManyCrosswordsLaterTheFirstOnesAreLeft) {
  for (int i = 0; i < 70; ++i) {
    session->New({"...."});
    session->Letter({1, 1}, static_cast<char>('A' + i % 26));
  }
  std::string seen;
  for (int i = 0; i < 200; ++i)
    seen = After("<");
  EXPECT_EQ(seen, ".... NuovoCruciverba.tlrm");
  EXPECT_EQ(session->History().DaRipetere(), "Lettera G");  // the seventh one
}

}  // namespace
}  // namespace telarium
