#include "platform/files.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/codepage.h"
#include "platform/descriptor.h"
#include "support/ordinary_user.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;
using Files = TelariumTest;
using Names = std::vector<Percorso>;

// Writes while no file of this process can grow past 4096 bytes, as on a disk that fills up.
std::error_code WriteTooMuch(const Percorso& name, const Percorso& beside) {
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const rlimit limit{4096, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  const auto error = ScriviFile(name, std::string(10000, 'x'), Permanenza::SulDisco, beside);
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  return error;
}

TEST_F(Files, WriteThatFailsKeepsTheOldFileLeavesNoOtherAndTellsWhy) {
  WriteFile("vecchio", "contenuto");
  for (const char* name : {"vecchio", "nuovo"}) {
    EXPECT_EQ(WriteTooMuch(InFolder(name), {}), std::errc::file_too_large);
    EXPECT_EQ(WriteTooMuch(InFolder(name), InFolder("accanto")), std::errc::file_too_large);
  }
  EXPECT_EQ(ScriviFile(CartellaProgramma, "y"), std::errc::is_a_directory);
  EXPECT_EQ(ScriviFile(InFolder("manca/file"), "y"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(ScriviFile("/dev/full", "y"), std::errc::no_space_on_device);
  EXPECT_EQ(ReadFile(InFolder("vecchio")), "contenuto");
  EXPECT_EQ(ElencaFile(CartellaProgramma, "*"), Names{"vecchio"});
}

TEST_F(Files, ANewFileIsWrittenWhereThereIsNone) {
  EXPECT_FALSE(ScriviFileNuovo(InFolder("nuovo"), "primo"));
  fs::create_symlink("manca", InFolder("legame"));
  fs::create_directory(InFolder("sotto"));
  for (const char* name : {"nuovo", "legame", "sotto"})
    EXPECT_EQ(ScriviFileNuovo(InFolder(name), "secondo"), std::errc::file_exists) << name;
  EXPECT_EQ(ScriviFileNuovo(InFolder("manca/file"), "y"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(ReadFile(InFolder("nuovo")), "primo");
  EXPECT_EQ(ElencaFile(CartellaProgramma, "*"), Names{"nuovo"});
}

TEST_F(Files, WriteKeepsLinksAndRightsAndTakesTheLongestName) {
  fs::create_directory(InFolder("sotto"));
  fs::permissions(WriteFile("sotto/vero", "vecchio"), fs::perms(0604));
  fs::create_symlink("sotto/vero", InFolder("legame"));
  const mode_t before = ::umask(027);
  WriteFile("legame", "nuovo");
  WriteFile("altro", "nuovo");
  ::umask(before);
  EXPECT_TRUE(fs::is_symlink(InFolder("legame")));
  EXPECT_EQ(ReadFile(InFolder("sotto/vero")), "nuovo");
  EXPECT_EQ(fs::status(InFolder("legame")).permissions(), fs::perms(0604));
  EXPECT_EQ(fs::status(InFolder("altro")).permissions(), fs::perms(0640));
  WriteFile(std::string(255, 'n'), "x");
}

TEST_F(Files, ReadTellsMissingUnreadableAndTooLargeApart) {
  const Percorso file = WriteFile("cinque", "12345");
  fs::create_symlink("anello", InFolder("anello"));
  std::string contents;
  EXPECT_EQ(LeggiFile(file, 5, contents), EsitoLettura::Letto);
  EXPECT_EQ(contents, "12345");
  EXPECT_EQ(LeggiFile(file, 4, contents), EsitoLettura::TroppoGrande);
  EXPECT_EQ(contents, "");
  EXPECT_EQ(LeggiFile(InFolder("anello"), 5, contents), EsitoLettura::Illeggibile);
  EXPECT_EQ(LeggiFile(file / "dentro", 5, contents), EsitoLettura::Assente);
  EXPECT_EQ(LeggiFile(CartellaProgramma, 5, contents), EsitoLettura::Assente);
}

TEST_F(Files, RightsThatAreMissingCostNothingAndAreTold) {
  const Percorso file = WriteFile("protetto", "vecchio"), secret = WriteFile("segreto", "x");
  const Percorso closed = InFolder("chiusa");
  fs::create_directory(closed);
  fs::permissions(CartellaProgramma, fs::perms::all);
  fs::permissions(file, fs::perms(0444));
  fs::permissions(secret, fs::perms::none);
  fs::permissions(closed, fs::perms(0555));
  constexpr auto denied = std::errc::permission_denied;
  EXPECT_TRUE(AsOrdinaryUser([&] { return ScriviFile(file, "nuovo") == denied; }))
      << "though its folder would allow it";
  EXPECT_TRUE(AsOrdinaryUser([&] { return ScriviFile(closed / "x", "nuovo") == denied; }));
  EXPECT_TRUE(AsOrdinaryUser([&] { return ScriviFileNuovo(closed / "x", "nuovo") == denied; }));
  EXPECT_TRUE(AsOrdinaryUser([&] { return !CartellaScrivibile(closed); }));
  EXPECT_TRUE(AsOrdinaryUser([&] { return CartellaScrivibile(CartellaProgramma); }));
  EXPECT_TRUE(AsOrdinaryUser([&] {
    std::string contents;
    return LeggiFile(secret, 5, contents) == EsitoLettura::Illeggibile;
  }));
  EXPECT_EQ(ReadFile(file), "vecchio");
  EXPECT_EQ(ElencaFile(CartellaProgramma, "*"), (Names{"protetto", "segreto"}));
  EXPECT_TRUE(ElencaFile(closed, "*").empty());
  fs::permissions(closed, fs::perms::all);
}

// One that somebody holds open for writing keeps its reader waiting.
TEST_F(Files, WhatIsNoFileIsNotReadAndNotWaitedFor) {
  ASSERT_EQ(::mkfifo(InFolder("pipe").c_str(), 0600), 0);
  const Descrittore held(::open(InFolder("pipe").c_str(), O_RDWR | O_CLOEXEC));
  std::string contents;
  std::error_code error;
  for (const Percorso& other : {InFolder("pipe"), Percorso("/dev/zero"), Percorso("/dev/null")}) {
    EXPECT_EQ(LeggiFile(other, 100000, contents, error), EsitoLettura::Illeggibile) << other;
    EXPECT_EQ(ConCausa("Peccato!", "x", error),
              "Peccato!\nx: non \xE8 un file ma una pipe o un dispositivo.");
  }
  EXPECT_EQ(LeggiFile(WriteFile("vuoto", ""), 5, contents, error), EsitoLettura::Letto);
  EXPECT_EQ(ConCausa("Peccato!", "x", error), "Peccato!");
}

TEST_F(Files, NamesAreFoundWhateverTheirCase) {
  fs::create_directory(InFolder("sotto.DFC"));
  for (const char* name : {"UNO.DFC", "Perché.dat", "A.txt", "a.txt", "sotto.DFC/x.TXT"}) {
    WriteFile(name, "x");
    EXPECT_EQ(TrovaFile(CartellaProgramma, name), InFolder(name));
  }
  const auto found = [this](const char* name) { return TrovaFile(CartellaProgramma, name); };
  EXPECT_EQ(found("PERCHÉ.DAT"), InFolder("Perché.dat"));
  EXPECT_EQ(found("a.TXT"), InFolder("A.txt"));
  EXPECT_EQ(found("sotto.DFC/X.txt"), InFolder("sotto.DFC/x.TXT"));
  for (const char* name : {"sotto.dfc", "sotto.DFC", "SOTTO.DFC/x.TXT", "manca/x", "uno", ""}) {
    EXPECT_EQ(found(name), std::nullopt) << name;
  }
  EXPECT_EQ(PercorsoNellaCartella(CartellaProgramma, "manca"), InFolder("manca"));
  EXPECT_EQ(ElencaFile(CartellaProgramma, "*.dfc"), Names{"UNO.DFC"});
  EXPECT_EQ(ElencaFile(CartellaProgramma, "?.TXT"), (Names{"A.txt", "a.txt"}));
  EXPECT_EQ(ElencaFile(CartellaProgramma, "P*H?.d*"), Names{"Perché.dat"});
  EXPECT_EQ(ElencaFile(InFolder("manca"), "*"), Names{});
  EXPECT_EQ(TestoPercorso("è→.tlrm"), "è?.tlrm"_cp);
  WriteFile("Zażółć.Tlrm", "x");
  WriteFile("byte\xE8.tlrm", "x");
  EXPECT_EQ(ElencaFile(CartellaProgramma, "*.tlr*"), (Names{"Zażółć.Tlrm", "byte\xE8.tlrm"}));
  EXPECT_EQ(found("zAżółć.TLRM"), InFolder("Zażółć.Tlrm"));
}

TEST_F(Files, FoldersAreListedWithoutHiddenOnes) {
  for (const char* name : {"b", "A", ".nascosta"})
    fs::create_directory(InFolder(name));
  WriteFile("file", "x");
  Names folders;
  EXPECT_FALSE(ElencaCartelle(CartellaProgramma, folders));
  EXPECT_EQ(folders, (Names{"A", "b"}));
  EXPECT_TRUE(ElencaCartelle(InFolder("manca"), folders));
  EXPECT_EQ(folders, (Names{"A", "b"})) << "as they were";
}

}  // namespace
}  // namespace telarium
