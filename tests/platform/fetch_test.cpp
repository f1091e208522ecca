#include "platform/common/fetch.h"

#include <chrono>
#include <sys/stat.h>

#include "platform/text.h"
#include "support/loopback_server.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using namespace std::chrono_literals;
using Server = LoopbackServer;
using Bytes = std::optional<std::string>;

constexpr LimitiDiPrelievo Ample{.tempo = 60s, .byte = 1u << 20};

class Fetch : public TelariumTest {
 protected:
  void TearDown() override {
    EXPECT_LT(std::chrono::steady_clock::now() - start_, 30s) << "a limit was not kept";
    TelariumTest::TearDown();
  }

  static Bytes From(const std::string& address, LimitiDiPrelievo limits = Ample,
                    const ProseguePrelievo& goesOn = {}) {
    return PrelevaIndirizzo(address, limits, goesOn).byte;
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

TEST_F(Fetch, GivesWholeBodiesOnly) {
  const std::string body("7\0\r\n\xE8", 5);
  const Server good(Server::Reply("200 OK", "", body));
  EXPECT_EQ(From(good.Address() + "/x y\xC3\xA8"), body);
  EXPECT_EQ(From("HTTP" + good.Address().substr(4)), body);
  EXPECT_EQ(From(good.Address() + "/x y?z=http://w"), body);
  const Server empty(Server::Reply("200 OK", "Content-Length: 0\r\n", ""));
  EXPECT_EQ(From(empty.Address()), "");
  const Server missing(Server::Reply("404 Not Found", "", "no such page"));
  EXPECT_EQ(From(missing.Address()), std::nullopt);
  const Server cut(Server::Reply("200 OK", "Content-Length: 100\r\n", "too short"));
  EXPECT_EQ(From(cut.Address()), std::nullopt);
  const Server noAnswer("");
  EXPECT_EQ(From(noAnswer.Address()), std::nullopt);
}

TEST_F(Fetch, FollowsAFewRedirectionsToPagesAndNoneToFiles) {
  const auto to = [](const std::string& place) {
    return Server::Reply("302 Found", "Location: " + place + "\r\n", "");
  };
  const Server good(Server::Reply("200 OK", "", "page"));
  const Server once(to(good.Address() + "/y"));
  EXPECT_EQ(From(once.Address()), "page");
  const Server file(to("file://" + WriteFile("secret", "secret").string()));
  EXPECT_EQ(From(file.Address()), std::nullopt);
  const Server loop(to("/"));
  EXPECT_EQ(From(loop.Address()), std::nullopt);
  EXPECT_EQ(loop.Calls(), 6) << "the first one and five redirections";
}

TEST_F(Fetch, KeepsItsLimitsOfTimeAndSize) {
  const Server silent("", Server::Then::Hold);
  EXPECT_EQ(From(silent.Address(), {.tempo = 100ms, .byte = 100}), std::nullopt);
  const Server slow(Server::Reply("200 OK", "", "begins"), Server::Then::Hold);
  EXPECT_EQ(From(slow.Address(), {.tempo = 100ms, .byte = 100}), std::nullopt);
  const Server endless(Server::Reply("200 OK", "", ""), Server::Then::Repeat);
  std::size_t most = 0;
  EXPECT_EQ(From(endless.Address(), Ample,
                 [&](std::size_t bytes) {
                   most = std::max(most, bytes);
                   return true;
                 }),
            std::nullopt);
  EXPECT_LE(most, Ample.byte);
  const Server exact(Server::Reply("200 OK", "", "12345"));
  EXPECT_EQ(From(exact.Address(), {.tempo = 60s, .byte = 5}), "12345");
  EXPECT_EQ(From(exact.Address(), {.tempo = 60s, .byte = 4}), std::nullopt);
}

TEST_F(Fetch, TellsWhyItBringsNothing) {
  const auto reply = [](const char* status, const std::string& headers, const char* body) {
    return Server::Reply(status, headers, body);
  };
  const Server missing(reply("404 Not Found", "", "")), broken(reply("500 Oh", "", ""));
  const Server cut(reply("200 OK", "Content-Length: 100\r\n", "too short")), mute("");
  const Server loop(reply("302 Found", "Location: /\r\n", ""));
  const Server elsewhere(reply("302 Found", "Location: file:///etc/passwd\r\n", ""));
  const Server large(reply("200 OK", "", "123456"));
  const Server silent("", Server::Then::Hold);
  const std::string file = WriteFile("page.html", "123456");
  const LimitiDiPrelievo brief{.tempo = 100ms, .byte = 5};
  const struct {
    std::string address, cause;
    LimitiDiPrelievo limits = Ample;
  } cases[] = {
      {missing.Address(), "Il sito non ha questa pagina."},
      {broken.Address(), "Il sito ha risposto con l'errore 500."},
      {cut.Address(), "La pagina \xE8 arrivata solo in parte."},
      {mute.Address(), "Il sito non ha risposto nulla."},
      {"http://127.0.0.1:1/", "Il sito non accetta collegamenti."},
      {loop.Address(), "Il sito rinvia troppe volte a un altro indirizzo."},
      {elsewhere.Address(), "Il sito rinvia a un indirizzo che non \xE8 di una pagina."},
      {silent.Address(), "La pagina non \xE8 arrivata in tempo.", brief},
      {large.Address(), "La pagina \xE8 pi\xF9 grande di 5 byte.", {.tempo = 60s, .byte = 5}},
      {"http://", "L'indirizzo non \xE8 valido."},
      {"ftp://127.0.0.1/", "L'indirizzo non \xE8 valido."},
      {"file:///non c'\xC3\xA8", "Il file \"/non c'\xE8\" non esiste."},
      {"file:///dev", "Il nome \"/dev\" non \xE8 quello di un file."},
      {"file://" + file, Unisci("Il file \"", file, "\" \xE8 pi\xF9 grande di 5 byte."), brief},
  };
  for (const auto& [address, cause, limits] : cases)
    EXPECT_EQ(PrelevaIndirizzo(address, limits, {}).causa, cause) << address;
  EXPECT_EQ(PrelevaIndirizzo(large.Address(), Ample, {}).causa, "");
  EXPECT_EQ(PrelevaIndirizzo(silent.Address(), Ample, [](std::size_t) { return false; }).causa, "");
}

TEST_F(Fetch, IsBrokenOffByItsUser) {
  const Server silent("", Server::Then::Hold);
  EXPECT_EQ(From(silent.Address(), Ample, [](std::size_t) { return false; }), std::nullopt);
  const Server begun(Server::Reply("200 OK", "", "begins"), Server::Then::Hold);
  EXPECT_EQ(From(begun.Address(), Ample, [](std::size_t bytes) { return bytes == 0; }),
            std::nullopt);
}

TEST_F(Fetch, ReadsFilesByTheirNamesOrWithEscapes) {
  const Percorso spaced = WriteFile("a page.html", "spaced");
  const Percorso percent = WriteFile("a%20page.html", "percent");
  std::string escaped = spaced.string();
  escaped.replace(escaped.rfind(' '), 1, "%20");
  EXPECT_EQ(From("file://" + spaced.string()), "spaced");
  EXPECT_EQ(From("file://" + escaped), "percent") << "the name as it stands before all others";
  std::filesystem::remove(percent);
  EXPECT_EQ(From("FILE://" + escaped), "spaced");
  EXPECT_EQ(From("file://localhost" + escaped), "spaced");
  EXPECT_EQ(From("file://" + std::filesystem::relative(spaced).string()), "spaced");
  EXPECT_EQ(From("file://" + spaced.string(), {.tempo = 1s, .byte = 5}), std::nullopt);
}

TEST_F(Fetch, GivesNothingForWhatIsNoPageAndNoFile) {
  const Percorso pipe = InFolder("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const std::string file = WriteFile("page.html", "page");
  for (const std::string& address :
       {"file://" + pipe.string(), "file://" + InFolder("missing").string(),
        "file://" + InFolder("").string(), std::string("file:///dev/zero"), std::string("file://"),
        "file://" + file + "%00", "file://" + file + std::string("\0x", 2), file, std::string(),
        std::string("no address at all"), std::string("ftp://127.0.0.1/"), std::string("http://"),
        std::string("http:// /"), "file://" + std::string(100'000, 'x')}) {
    EXPECT_EQ(From(address), std::nullopt) << address.substr(0, 100);
  }
}

}  // namespace
}  // namespace telarium
