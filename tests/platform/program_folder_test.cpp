#include "platform/program_folder.h"

#include <cstdlib>

#include "support/telarium_test.h"

namespace telarium {
namespace {

// A variable of the environment, null for none, until the end of the scope.
struct Variable {
  Variable(const char* its, const char* value) : name(its) {
    if (const char* old = std::getenv(its)) before = old;
    Set(value);
  }
  ~Variable() { Set(before ? before->c_str() : nullptr); }
  void Set(const char* value) { value ? ::setenv(name, value, 1) : ::unsetenv(name); }

  const char* name;
  std::optional<std::string> before;
};

TEST(ProgramFolder, EnvironmentDecidesWhichItIs) {
  const struct {
    const char *named, *data, *home;
    Percorso folder;
    bool fill;
  } cases[] = {
      {"/nominata", "/dati", "/casa", "/nominata", false},
      {"nominata", "/dati", "/casa", std::filesystem::current_path() / "nominata", false},
      {"", "/dati", "/casa", "/dati/telarium", true},
      {nullptr, nullptr, "/casa", "/casa/.local/share/telarium", true},
      {nullptr, "relativa", "/casa", "/casa/.local/share/telarium", true},
      {nullptr, nullptr, "relativa", "", false},
  };
  for (const auto& row : cases) {
    const Variable named("TELARIUM_CARTELLA", row.named);
    const Variable data("XDG_DATA_HOME", row.data);
    const Variable home("HOME", row.home);
    EXPECT_EQ(ScegliCartellaProgramma().cartella, row.folder);
    EXPECT_EQ(ScegliCartellaProgramma().daRiempire, row.fill) << row.folder;
  }
}

using FillingFolder = TelariumTest;
using Names = std::vector<Percorso>;

TEST_F(FillingFolder, WhatIsMissingIsCopiedAndNothingIsWrittenOver) {
  std::filesystem::create_directories(InFolder("dati/aiuto/figure"));
  std::filesystem::create_directories(InFolder("dati/occupata"));
  std::filesystem::create_directories(InFolder("mia/aiuto"));
  for (const char* name : {"INI", "DFC", "aiuto/A.html", "aiuto/figure/una.bmp", "occupata/file"}) {
    WriteFile(Percorso("dati") / name, "installato");
  }
  const char* const kept[] = {"ini", "aiuto/a.HTML", "occupata"};
  for (const char* name : kept)
    WriteFile(Percorso("mia") / name, "mio");
  EXPECT_EQ(RiempiCartella(InFolder("dati"), InFolder("mia")), Names{"occupata/file"});
  EXPECT_EQ(ElencaFile(InFolder("mia"), "*"), (Names{"DFC", "ini", "occupata"}));
  EXPECT_EQ(ElencaFile(InFolder("mia/aiuto"), "*"), Names{"a.HTML"});
  EXPECT_EQ(ReadFile(InFolder("mia/aiuto/figure/una.bmp")), "installato");
  for (const char* name : kept)
    EXPECT_EQ(ReadFile(InFolder("mia") / name), "mio");
}

}  // namespace
}  // namespace telarium
