#include "platform/temporary.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

class Temporary : public TelariumTest {
 protected:
  static void Age(const Percorso& path) {
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(25));
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(CartellaProgramma))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
};

// The process ends where its file reaches the limit.
void WriteAndBeKilled(const Percorso& path) {
  if (::fork() == 0) {
    const rlimit limit{4096, 4096};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    std::signal(SIGXFSZ, SIG_DFL);
    static_cast<void>(ScriviFile(path, std::string(10000, 'x')));
    ::_exit(0);
  }
  int status = 0;
  ::wait(&status);
  EXPECT_TRUE(WIFSIGNALED(status));
}

TEST_F(Temporary, WhatAKilledWriteLeftGoesAfterADay) {
  WriteFile("cruciverba.tlrm", "old");
  WriteAndBeKilled(InFolder("cruciverba.tlrm"));
  EXPECT_EQ(Names().size(), 2u);
  TogliScrittureInterrotte(CartellaProgramma);
  EXPECT_EQ(Names().size(), 2u) << "its writer may live";
  for (const std::string& name : Names())
    Age(InFolder(name));
  TogliScrittureInterrotte(CartellaProgramma);
  EXPECT_EQ(Names(), std::vector<std::string>{"cruciverba.tlrm"});
}

TEST_F(Temporary, WhatIsNotOursByItsNameStays) {
  const std::vector<std::string> others = {
      ".uno.tlrm.AbC123",          // as another program's copying names its own
      ".uno.tlrm.telarium-AbC12",  // a letter less
      ".uno.tlrm.telarium-AbC-23", "uno.tlrm.telarium-AbC123", ".telarium.lock"};
  for (const std::string& name : others)
    Age(WriteFile(name, "x"));
  fs::create_directory(InFolder(".cartella.telarium-AbC123"));
  Age(InFolder(".cartella.telarium-AbC123"));
  TogliScrittureInterrotte(CartellaProgramma);
  TogliScrittureInterrotte(InFolder("manca"));
  EXPECT_EQ(Names().size(), others.size() + 1);
}

TEST_F(Temporary, AFolderGoesThatNoProcessHoldsAndNothingChanges) {
  const char* before = std::getenv("TMPDIR");
  const std::string restored = before ? before : "";
  ::setenv("TMPDIR", InFolder("").c_str(), 1);
  {
    const CartellaTemporanea held;
    for (const char* name : {"telarium-AbC123", "telarium-Young1", "telarium-longer7", "other"}) {
      fs::create_directory(InFolder(name));
      Age(WriteFile(Percorso(name) / "_tlma_32.tmp", "x"));
      Age(InFolder(name));
    }
    WriteFile("telarium-Young1/_tlma_32.tmp", "y");
    Age(InFolder("telarium-Young1"));
    Age(held.Nome());
    TogliCartelleAbbandonate();
    std::vector<std::string> left = {"other", held.Nome().filename(), "telarium-Young1",
                                     "telarium-longer7"};
    std::sort(left.begin(), left.end());
    EXPECT_EQ(Names(), left);
  }
  EXPECT_EQ(Names().size(), 3u) << "the end of its life";
  before ? ::setenv("TMPDIR", restored.c_str(), 1) : ::unsetenv("TMPDIR");
}

}  // namespace
}  // namespace telarium
