#include <QProcess>
#include <QTest>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "model/crossword_file.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "support/telarium_test.h"
#include "telarium/own_folder.h"
#include "telarium/single_instance.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

constexpr int Patience = 20'000;  // milliseconds

// The real program, as a process.
class DesktopTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    ::setenv("XDG_RUNTIME_DIR", InFolder("").c_str(), 1);
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

TEST_F(DesktopTest, ALogoutEndsItInOrder) {
  const Percorso one = CrosswordFile("uno.tlrm", {"CASA", "...."});
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    const auto program = Start({QStringLiteral("uno.tlrm")});
    ASSERT_TRUE(Shows(one));
    ::kill(static_cast<pid_t>(program->processId()), signal);
    End(*program);
    EXPECT_EQ(program->exitCode(), 0);
    EXPECT_FALSE(fs::exists(PercorsoIstantanea()));
    EXPECT_FALSE(fs::exists(InFolder(".telarium.lock")));
  }
}

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
  const auto receive = [&](const Percorso& file) {
    received = file;
    answered = QTest::qWaitFor([&] { return gone.load(); }, Patience);
    for (int round = 0; round < 3; ++round)  // the server notices that end, and clears up
      QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  };
  ASSERT_EQ(first.Inizia(receive), UnicaIstanza::Avvio::Prima);
  std::thread second([&] {
    EXPECT_TRUE(UnicaIstanza(InFolder("")).Consegna("due.tlrm"));
    gone = true;
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return answered; }, Patience));
  second.join();
  EXPECT_EQ(received, "due.tlrm");
}

using Avvio = UnicaIstanza::Avvio;

// The system holds the lock for a process: what the file says keeps nobody out.
TEST_F(DesktopTest, ALockThatNoProcessHoldsIsTakenWhateverItSays) {
  const std::string here = QSysInfo::machineHostName().toStdString();
  const std::pair<const char*, std::string> locks[] = {
      {"empty", ""},
      {"garbage", std::string("\xFF\0\n\n7x\n", 7)},
      {"a dead process", "999999999\ntelarium\n" + here + "\n"},
      {"a process that took the number", Unisci(::getpid(), "\ntelarium\n", here, "\n\n\n")},
      {"much", std::string(1 << 20, '1')},
  };
  for (const auto& [name, text] : locks) {
    SCOPED_TRACE(name);
    WriteFile(".telarium.lock", text);
    {
      UnicaIstanza first(InFolder(""));
      EXPECT_EQ(first.Inizia({}), Avvio::Prima);
      UnicaIstanza second(InFolder(""));
      EXPECT_EQ(second.Inizia({}), Avvio::Seconda);
      second.AvvisaSenzaRisposta();
      EXPECT_EQ(
          user.TakeTexts(),
          Texts{Unisci("Telarium è già aperto in questa cartella programma e non risponde.\n"_cp,
                       InFolder(".telarium.lock").string(), ": è del processo "_cp, ::getpid(),
                       " del computer ", here, '.')});
    }
    EXPECT_FALSE(fs::exists(InFolder(".telarium.lock")));
  }
}

TEST_F(DesktopTest, WhereTheLockLeavesADoubtTheUserIsAsked) {
  const std::pair<std::function<void(const Percorso&)>, std::string_view> locks[] = {
      {[this](const Percorso& name) { WriteFile(name.filename(), "77\ntelarium\nlontano\n"); },
       "è del processo 77 del computer lontano"_cp},
      {[](const Percorso& name) { fs::create_directory(name); },
       "il nome è quello di una cartella"_cp},
      {[](const Percorso& name) { EXPECT_EQ(::mkfifo(name.c_str(), 0600), 0); },
       "non è un file ma una pipe o un dispositivo"_cp},
      {[](const Percorso& name) { fs::create_symlink(name, name); },
       "il collegamento porta a se stesso"},
  };
  const Percorso name = InFolder(".telarium.lock");
  for (const auto& [make, cause] : locks) {
    SCOPED_TRACE(cause);
    make(name);
    user.Answer(Risposta::Annulla);
    EXPECT_EQ(UnicaIstanza(InFolder("")).Inizia({}), Avvio::Rinuncia);
    EXPECT_TRUE(fs::exists(fs::symlink_status(name))) << "as it was";
    {
      user.Answer(Risposta::Ok);
      UnicaIstanza first(InFolder(""));
      EXPECT_EQ(first.Inizia({}), Avvio::Prima);
      EXPECT_EQ(UnicaIstanza(InFolder("")).Inizia({}), Avvio::Seconda) << "and nothing asked";
    }
    const Texts told = user.TakeTexts();
    ASSERT_EQ(told.size(), 2u);
    EXPECT_NE(told[1].find(Unisci('\n', name.string(), ": ", cause, ".\n")), std::string::npos);
    fs::remove(name);
  }
}

TEST_F(DesktopTest, AFolderWithoutRightsGetsItsLockElsewhere) {
  fs::permissions(InFolder(""), fs::perms(0755));
  WriteFile(".telarium.lock", "");
  fs::permissions(InFolder(".telarium.lock"), fs::perms(0));
  ASSERT_TRUE(::geteuid() != 0 || ::seteuid(65534) == 0);
  BloccoDesktop unreadable, elsewhere;
  EXPECT_EQ(unreadable.Prendi(InFolder(".telarium.lock")), EsitoBlocco::Inservibile);
  EXPECT_EQ(unreadable.Errore(), std::errc::permission_denied);
  const EsitoBlocco other = elsewhere.Prendi(InFolder("manca/.telarium.lock"));
  ASSERT_EQ(::seteuid(::getuid()), 0);
  EXPECT_EQ(other, EsitoBlocco::Impossibile);
}

TEST_F(DesktopTest, TheSocketLiesInAFolderThatNobodyElseCanEnter) {
  const Percorso own = InFolder("telarium");
  UnicaIstanza first(InFolder(""));
  ASSERT_EQ(first.Inizia({}), Avvio::Prima);
  EXPECT_EQ(fs::status(own).permissions(), fs::perms(0700));
  int sockets = 0;
  for (const auto& entry : fs::directory_iterator(own)) {
    sockets += entry.is_socket();
    EXPECT_TRUE(!entry.is_socket() || entry.status().permissions() == fs::perms(0600));
  }
  EXPECT_EQ(sockets, 1);
  EXPECT_EQ(CartellaPropria(own.native().size()), own);
  EXPECT_NE(CartellaPropria(own.native().size() - 1), own) << "too long for a socket";
  fs::permissions(own, fs::perms(0777));
  EXPECT_EQ(CartellaPropria(100), own);
  EXPECT_EQ(fs::status(own).permissions(), fs::perms(0700));
  // Others may sit on the name: the cache folder comes next.
  ::setenv("XDG_CACHE_HOME", InFolder("").c_str(), 1);
  const std::function<void(const Percorso&)> squatters[] = {
      [](const Percorso& name) { fs::create_directory_symlink("/tmp", name); },
      [](const Percorso& name) { std::ofstream(name) << "x"; },
      [](const Percorso& name) {
        fs::create_directory(name);
        if (::geteuid() == 0) {
          EXPECT_EQ(::chown(name.c_str(), 65534, 65534), 0);
        }
        fs::permissions(name.parent_path(), fs::perms(::geteuid() == 0 ? 0700 : 0777));
      },
      [](const Percorso& name) { fs::permissions(name.parent_path(), fs::perms(0777)); }};
  for (const auto& squat : squatters) {
    const Percorso runtime = InFolder("runtime");
    fs::create_directory(runtime);
    ::setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
    squat(runtime / "telarium");
    EXPECT_NE(CartellaPropria(100), runtime / "telarium");
    fs::remove_all(runtime);
  }
  ::unsetenv("XDG_CACHE_HOME");
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
