#include <QProcess>
#include <QTest>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <thread>

#include "model/crossword_file.h"
#include "support/telarium_test.h"
#include "telarium/single_instance.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr int Patience = 20'000;  // milliseconds

// The real program, as a process.
class DesktopTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    WriteFile("telarium.INI", "");
    OpenDictionary({"CASA"});
    std::filesystem::create_directory(InFolder("Telarium"));
    WriteFile("Telarium/telarium.ini", "[Options]\nShow%20Tips%20at%20Startup=0\n");
  }

  std::unique_ptr<QProcess> Start(const QStringList& arguments, const char* display = "offscreen") {
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TELARIUM_CARTELLA"),
                       QString::fromStdString(InFolder("").string()));
    environment.insert(QStringLiteral("TELARIUM_TEMPI"), QStringLiteral("1"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       QString::fromStdString(InFolder("").string()));
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
      environment.remove(QLatin1StringView(variable));
    if (*display) environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QLatin1StringView(display));
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(QString::fromStdString(InFolder("").string()));
    process->start(QStringLiteral(TELARIUM_PROGRAM), arguments);
    EXPECT_TRUE(process->waitForStarted(Patience));
    return process;
  }

  QByteArray End(QProcess& process) {
    EXPECT_TRUE(process.waitForFinished(Patience));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return process.readAllStandardOutput() + process.readAllStandardError();
  }

  // The crossword that the running program shows is the one in its snapshot.
  bool Shows(const Percorso& file) {
    return QTest::qWaitFor(
        [&] {
          return fs::exists(PercorsoIstantanea()) &&
                 ReadFile(PercorsoIstantanea()) == ReadFile(file);
        },
        Patience);
  }

  Percorso CrosswordFile(const char* name, const std::vector<std::string>& rows) {
    Draw(rows);
    EXPECT_TRUE(ScriviCruciverba(InFolder(name)));
    return InFolder(name);
  }
};

TEST_F(DesktopTest, HandsTheFileOfASecondStartToTheFirst) {
  const Percorso one = CrosswordFile("uno \xC3\xA8.tlrm", {"CASA", "...."});
  const Percorso two = CrosswordFile("due.tlrm", {"....", "#..."});
  const auto first = Start({QString::fromStdString("uno \xC3\xA8.tlrm")});  // from where it starts
  EXPECT_TRUE(Shows(one));
  QByteArray told;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return (told += first->readAllStandardError()).contains("fino alla prima immagine"); },
      Patience));
  const int start = told.mid(told.indexOf("avvio: ") + 7).split(' ').front().toInt();
  EXPECT_TRUE(start > 0 && start < 3 * Patience) << told.toStdString();
  EXPECT_TRUE(fs::exists(InFolder(".telarium.lock")));
  EXPECT_FALSE(fs::exists(InFolder("telarium1.mdb"))) << "made in the user's own folder alone";

  const auto second = Start({QStringLiteral("due.tlrm")});
  End(*second);
  EXPECT_EQ(second->exitCode(), 0);
  EXPECT_TRUE(Shows(two));
  End(*Start({}));  // without a file it only asks the first one to come to the front
  EXPECT_EQ(first->state(), QProcess::Running);

  first->kill();  // the lock of one that died holds nobody up
  first->waitForFinished(Patience);
  const auto third = Start({QStringLiteral("uno"), QString::fromStdString("\xC3\xA8.tlrm")});
  EXPECT_TRUE(Shows(one)) << "words of one name";
  third->kill();
  third->waitForFinished(Patience);
}

// The first one may have to ask before it opens the file: the other one is gone by the answer.
TEST_F(DesktopTest, AQuestionMayStandWhileTheSecondStartEnds) {
  UnicaIstanza first(InFolder(""));
  Percorso received;
  std::atomic<bool> gone = false;
  bool answered = false;
  ASSERT_TRUE(first.Prima([&](const Percorso& file) {
    received = file;
    answered = QTest::qWaitFor([&] { return gone.load(); }, Patience);
    for (int round = 0; round < 3; ++round)  // the server notices that end, and clears up
      QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }));
  std::thread second([&] {
    EXPECT_TRUE(UnicaIstanza(InFolder("")).Consegna("due.tlrm"));
    gone = true;
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return answered; }, Patience));
  second.join();
  EXPECT_EQ(received, "due.tlrm");
}

TEST_F(DesktopTest, TellsItsUseAndItsVersionAndAMissingDisplay) {
  EXPECT_TRUE(End(*Start({QStringLiteral("--help")}, "")).startsWith("Uso: telarium [FILE]\n"));
  EXPECT_EQ(End(*Start({QStringLiteral("--version")}, "")), QByteArray("telarium 7.0.1\n"));
  const auto blind = Start({}, "");
  EXPECT_TRUE(End(*blind).contains("nessuno schermo"));
  EXPECT_EQ(blind->exitCode(), 1);
}

}  // namespace
}  // namespace telarium
