#include "platform/qt/qt_machine.h"

#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>

#include <gtest/gtest.h>

#include "platform/temporary.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

class MachineTest : public ::testing::Test {
 protected:
  // An executable of the shell in a folder that PATH names alone.
  Percorso Program(const char* name, const std::string& script) {
    const Percorso path = folder.Nome() / name;
    std::ofstream(path) << "#!/bin/sh\n" << script << "\n";
    fs::permissions(path, fs::perms::owner_all);
    return path;
  }

  void SetUp() override {
    path_ = qgetenv("PATH");
    // No word processor of the system's may be found.
    for (const char* tool : {"cat", "cp", "mv"})
      fs::create_symlink(fs::path("/bin") / tool, folder.Nome() / tool);
    qputenv("PATH", QByteArray::fromStdString(folder.Nome().string()));
    qputenv("TO", QByteArray::fromStdString((folder.Nome() / "told").string()));
  }
  void TearDown() override { qputenv("PATH", path_); }

  // What a program of ours has written, once it has.
  std::string Told() {
    const Percorso told = folder.Nome() / "told";
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return fs::exists(told) && fs::file_size(told) > 0; }, 10'000));
    std::ifstream file(told);
    std::string line;
    std::getline(file, line);
    fs::remove(told);
    return line;
  }

  CartellaTemporanea folder;
  MacchinaQt machine;

 private:
  QByteArray path_;
};

TEST_F(MachineTest, OpensTheWordProcessorOnANewDocumentOrNothing) {
  EXPECT_FALSE(machine.ScriviInWord("MELA"));
  Program("lowriter", "[ \"$1\" = -n ] && cp \"$2\" \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  EXPECT_TRUE(machine.ScriviInWord("A{\xC8"));
  EXPECT_EQ(Told(), "{\\rtf1\\ansi\\ansicpg1252 \\'41\\'7b\\'c8}");
}

TEST_F(MachineTest, OpensDocumentsInTheWordProcessorAndPagesWithTheirEncoding) {
  const Percorso document = folder.Nome() / "a document.DOC";
  const Percorso page = folder.Nome() / "page.html";
  std::ofstream(document) << "x";
  std::ofstream(page) << "<html><head><title>\xC8</title>";
  EXPECT_FALSE(machine.ApriInWord(document)) << "there is none";
  Program("lowriter", "cat \"${2:-$1}\" > \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  EXPECT_TRUE(machine.ApriInWord(document));
  EXPECT_EQ(Told(), "x");
  EXPECT_TRUE(machine.ApriInWord(page));
  EXPECT_EQ(Told(),
            "<html><head><meta http-equiv=\"Content-Type\" "
            "content=\"text/html; charset=windows-1252\"><title>\xC8</title>");
  EXPECT_FALSE(machine.ApriInWord(folder.Nome() / "missing"));
}

TEST_F(MachineTest, StartsProgramsAndTellsTheSystemsErrors) {
  const Percorso program =
      Program("a program", "printf '%s\\n' \"$2$1\" > \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  EXPECT_FALSE(machine.EseguiComando(program, {"b \"c", "\xE8"}));
  EXPECT_EQ(Told(),
            "\xC3\xA8"
            "b \"c");
  EXPECT_EQ(machine.EseguiComando(folder.Nome() / "missing", {}).value(), ENOENT);
  const Percorso text = folder.Nome() / "text";
  std::ofstream(text) << "no program";
  EXPECT_EQ(machine.EseguiComando(text, {}).value(), EACCES);
}

TEST_F(MachineTest, OpensFilesAndAddressesAndKnowsWhenItCannot) {
  Program("xdg-open", "printf '%s\\n' \"$1\" > \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  EXPECT_TRUE(machine.ApriIndirizzo("https://www.telarium.example/a b"));
  EXPECT_EQ(Told(), "https://www.telarium.example/a%20b");
  EXPECT_TRUE(machine.ApriIndirizzo("mailto:autore@telarium.example"));
  EXPECT_EQ(Told(), "mailto:autore@telarium.example");
  const Percorso file = folder.Nome() / "a file";
  std::ofstream(file) << "x";
  EXPECT_TRUE(machine.ApriFile(file));
  EXPECT_EQ(Told(), file.string());
  for (const char* bad : {"", "file:///etc/passwd", "--help", "javascript:alert(1)"})
    EXPECT_FALSE(machine.ApriIndirizzo(bad)) << bad;
  EXPECT_FALSE(machine.ApriFile(folder.Nome() / "missing"));
  Program("xdg-open", "exit 3");  // nothing opens it
  EXPECT_FALSE(machine.ApriIndirizzo("https://www.telarium.example"));
}

TEST_F(MachineTest, HandsAMailOverAsOneAddressOrSaysThatItIsNotTaken) {
  Mail mail{.destinatario = "-a&b=c+d@x.example",
            .oggetto = "Perch\xE9 \\n?",
            .testo = "Uno\r\ndue & 100%",
            .allegato = folder.Nome() / "l'\xC3\xA8 due.tlrm"};
  EXPECT_FALSE(machine.PreparaMail(mail)) << "there is no mail program";
  Program("xdg-email", "printf '%s\\n' \"$#$*\" > \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  EXPECT_TRUE(machine.PreparaMail(mail));
  EXPECT_EQ(Told(),
            "1mailto:-a%26b%3Dc%2Bd@x.example?subject=Perch%C3%A9%20%5Cn%3F"
            "&body=Uno%0D%0Adue%20%26%20100%25&attach=" +
                folder.Nome().string() + "/l%27%C3%A8%20due.tlrm");
  const std::pair<const char*, const char*> recipients[] = {
      {"o'neil@x.example", "1mailto:o%27neil@x.example?"},
      {"\"a b\" <a@x>, \xE8@x", "1mailto:%22a%20b%22%20%3Ca@x%3E%2C%20%C3%A8@x?"},
      // xdg-email decodes it and puts it between apostrophes.
      {"a@x',attachment='/etc/passwd", "1mailto:a@x%2527%2Cattachment%3D%2527%2Fetc%2Fpasswd?"}};
  for (const auto& [recipient, begins] : recipients) {
    mail.destinatario = recipient;
    EXPECT_TRUE(machine.PreparaMail(mail));
    const std::string told = Told();
    EXPECT_EQ(told.substr(0, told.find('?') + 1), begins);
  }
  const Percorso before = fs::current_path();
  fs::current_path(folder.Nome());
  mail.allegato = "mio.tlrm";
  EXPECT_TRUE(machine.PreparaMail(mail));
  EXPECT_TRUE(Told().ends_with("&attach=" + folder.Nome().string() + "/mio.tlrm"));
  fs::current_path(before);
  Program("xdg-mime", "echo");  // no program for mail: a browser would get it
  EXPECT_FALSE(machine.PreparaMail(mail));
  Program("xdg-mime", "echo thunderbird.desktop");
  EXPECT_TRUE(machine.PreparaMail(mail));
  Program("xdg-email", "exit 4");  // its program did not take the mail
  EXPECT_FALSE(machine.PreparaMail(mail));
}

// The programs here end only once the window has done something.
TEST_F(MachineTest, TheWindowsGoOnWhileAProgramIsWaitedFor) {
  const std::string script = "while [ ! -e \"$TO\" ]; do :; done";
  Program("xdg-open", script);
  Program("xdg-mime", script + "; echo thunderbird.desktop");
  Program("xdg-email", "exit 0");
  const std::function<bool()> ways[] = {
      [this] { return machine.ApriIndirizzo("https://www.telarium.example"); },
      [this] {
        return machine.PreparaMail({"autore@telarium.example", "", "", {}});
      },
  };
  for (const auto& way : ways) {
    SCOPED_TRACE(&way - ways);
    bool wentOn = false;
    QObject context;
    QTimer::singleShot(0, &context, [&] {
      wentOn = true;
      std::ofstream(folder.Nome() / "told") << "x";
    });
    EXPECT_TRUE(way());
    EXPECT_TRUE(wentOn);
    std::ofstream(folder.Nome() / "told") << "x";  // however it went, they end
    EXPECT_EQ(Told(), "x");
  }
}

TEST_F(MachineTest, OpensAProgramOfTheSystemThatDoesNotFailAtOnce) {
  EXPECT_FALSE(machine.ApriProgramma({"sysinfo"}));
  Program("sysinfo", "printf '%s\\n' \"$1\" > \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  EXPECT_TRUE(machine.ApriProgramma({"sysinfo", "a panel"}));
  EXPECT_EQ(Told(), "a panel");
  Program("sysinfo", "exit 1");  // not on this desktop
  EXPECT_FALSE(machine.ApriProgramma({"sysinfo"}));
}

TEST_F(MachineTest, OpensWebArchivesOnlyInProgramsThatShowThem) {
  Program("xdg-open", "printf '%s\\n' \"$1\" > \"$TO.tmp\"; mv \"$TO.tmp\" \"$TO\"");
  const Percorso archive = folder.Nome() / "guide.MHT";
  std::ofstream(archive) << "x";
  EXPECT_FALSE(machine.ApriFile(archive)) << "nothing tells";
  for (const char* answer : {"exit 4", "echo", "echo firefox-esr.desktop"}) {
    Program("xdg-mime", answer);
    EXPECT_FALSE(machine.ApriFile(archive)) << answer;
  }
  EXPECT_FALSE(fs::exists(folder.Nome() / "told"));
  Program("xdg-mime",
          "[ \"$*\" = 'query default application/x-mimearchive' ] && echo org.Chromium.desktop");
  EXPECT_TRUE(machine.ApriFile(archive));
  EXPECT_EQ(Told(), archive.string());
}

TEST_F(MachineTest, KeepsSettingsFromOneRunToTheNext) {
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.Nome().string()));
  EXPECT_EQ(machine.LeggiImpostazione("Options/Show Tips at Startup"), std::nullopt);
  machine.ScriviImpostazione("Options/Show Tips at Startup", "0");
  EXPECT_EQ(MacchinaQt().LeggiImpostazione("Options/Show Tips at Startup"), "0");
}

}  // namespace
}  // namespace telarium
