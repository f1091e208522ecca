#include "platform/program_folder.h"

#include <cstdlib>

#include "platform/user_folders.h"
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

TEST(ProgramFolder, CacheAndStateAreWhereTheSystemHasThem) {
  const struct {
    const char *named, *home;
    Percorso cache, state;
  } cases[] = {
      {"/qui", "/casa", "/qui/telarium", "/qui/telarium"},
      {"relativa", "/casa", "/casa/.cache/telarium", "/casa/.local/state/telarium"},
      {nullptr, "relativa", "", ""},
  };
  for (const auto& row : cases) {
    const Variable cache("XDG_CACHE_HOME", row.named);
    const Variable state("XDG_STATE_HOME", row.named);
    const Variable home("HOME", row.home);
    EXPECT_EQ(CartellaCacheUtente(), row.cache);
    EXPECT_EQ(CartellaStatoUtente(), row.state);
  }
}

using FillingFolder = TelariumTest;
using Names = std::vector<Percorso>;

TEST_F(FillingFolder, WhatIsMissingIsCopiedAndNothingIsWrittenOver) {
  std::filesystem::create_directories(InFolder("dati/aiuto/figure"));
  std::filesystem::create_directories(InFolder("dati/occupata"));
  std::filesystem::create_directories(InFolder("dati/clues"));
  std::filesystem::create_directories(InFolder("dati/lexicon"));
  std::filesystem::create_directories(InFolder("mia/AIUTO"));
  for (const char* name : {"INI", "DFC", "aiuto/A.html", "aiuto/figure/una.bmp", "occupata/file",
                           "clues/lista.tsv", "lexicon/italiano.lexicon", ".telarium.lock"}) {
    WriteFile(Percorso("dati") / name, "installato");
  }
  const char* const kept[] = {"ini", "AIUTO/a.HTML", "occupata"};
  for (const char* name : kept)
    WriteFile(Percorso("mia") / name, "mio");
  const auto failed = RiempiCartella(InFolder("dati"), InFolder("mia"));
  ASSERT_EQ(failed.size(), 1u);
  EXPECT_EQ(failed[0].nome, "occupata");
  EXPECT_EQ(failed[0].errore, std::errc::not_a_directory);
  EXPECT_EQ(ElencaFile(InFolder("mia"), "*"), (Names{"DFC", "ini", "occupata"}));
  Names folders;
  EXPECT_FALSE(ElencaCartelle(InFolder("mia"), folders));
  EXPECT_EQ(folders, Names{"AIUTO"}) << "one folder, whatever the case; no clue lists, no lexicons";
  EXPECT_EQ(ElencaFile(InFolder("mia/AIUTO"), "*"), Names{"a.HTML"});
  EXPECT_EQ(ReadFile(InFolder("mia/AIUTO/figure/una.bmp")), "installato");
  for (const char* name : kept)
    EXPECT_EQ(ReadFile(InFolder("mia") / name), "mio");
}

}  // namespace
}  // namespace telarium
