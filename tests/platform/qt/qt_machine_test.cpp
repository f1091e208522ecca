#include "platform/qt/qt_machine.h"

#include <QTest>
#include <arpa/inet.h>
#include <filesystem>
#include <fstream>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

namespace telarium {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

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
    qputenv("PATH", QByteArray::fromStdString(folder.Nome().string()) + ":/bin:/usr/bin");
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

TEST_F(MachineTest, KeepsSettingsFromOneRunToTheNext) {
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.Nome().string()));
  EXPECT_EQ(machine.LeggiImpostazione("Options/Show Tips at Startup"), std::nullopt);
  machine.ScriviImpostazione("Options/Show Tips at Startup", "0");
  EXPECT_EQ(MacchinaQt().LeggiImpostazione("Options/Show Tips at Startup"), "0");
}

// A web server on loopback that gives every caller the same bytes, and keeps the line open or not.
class TinyServer {
 public:
  TinyServer(std::string reply, bool closes) {
    listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
    ::listen(listener_, 8);
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this, reply = std::move(reply), closes] { Serve(reply, closes); });
  }
  ~TinyServer() {
    ::shutdown(listener_, SHUT_RDWR);
    thread_.join();
    ::close(listener_);
  }
  std::string Address() const { return "http://127.0.0.1:" + std::to_string(port_); }

 private:
  void Serve(const std::string& reply, bool closes) {
    std::vector<int> open;
    for (int caller; (caller = ::accept(listener_, nullptr, nullptr)) >= 0;) {
      char request[4096];
      if (::recv(caller, request, sizeof request, 0) > 0) {
        ::send(caller, reply.data(), reply.size(), MSG_NOSIGNAL);
      }
      open.push_back(caller);
      if (closes) ::close(open.back());
    }
    for (const int caller : open) {
      if (!closes) ::close(caller);
    }
  }

  int listener_ = -1;
  int port_ = 0;
  std::thread thread_;
};

std::string Reply(const std::string& status, const std::string& headers, const std::string& body) {
  return "HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

TEST_F(MachineTest, FetchesWholeBodiesOnly) {
  const TinyServer good(Reply("200 OK", "",
                              std::string("7\0"
                                          "12",
                                          4)),
                        true);
  EXPECT_EQ(machine.Preleva(good.Address() + "/x", 5s), std::string("7\0"
                                                                    "12",
                                                                    4));
  const TinyServer redirect(Reply("302 Found", "Location: " + good.Address() + "/y\r\n", ""), true);
  EXPECT_EQ(machine.Preleva(redirect.Address(), 5s), std::string("7\0"
                                                                 "12",
                                                                 4));
  const TinyServer toFile(Reply("302 Found", "Location: file:///etc/hostname\r\n", ""), true);
  EXPECT_EQ(machine.Preleva(toFile.Address(), 5s), std::nullopt);
  const TinyServer missing(Reply("404 Not Found", "", "no such page"), true);
  EXPECT_EQ(machine.Preleva(missing.Address(), 5s), std::nullopt);
  const TinyServer cut(Reply("200 OK", "Content-Length: 100\r\n", "too short"), true);
  EXPECT_EQ(machine.Preleva(cut.Address(), 5s), std::nullopt);
  const TinyServer huge(Reply("200 OK", "", std::string(17u << 20, 'x')), true);
  EXPECT_EQ(machine.Preleva(huge.Address(), 30s), std::nullopt);
  EXPECT_EQ(machine.Preleva("no address at all", 5s), std::nullopt);
}

TEST_F(MachineTest, GivesUpAServerThatNeverAnswers) {
  const TinyServer silent("", false);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(machine.Preleva(silent.Address(), 200ms), std::nullopt);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
}

}  // namespace
}  // namespace telarium
