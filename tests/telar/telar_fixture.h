#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "platform/text.h"
#include "support/telarium_test.h"
#include "telar/run_telar.h"

namespace telarium {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

inline constexpr std::string_view Head = "Autore\r\nData\r\nTipo\r\nDimensioni : ";

inline Words Split(std::string_view text, char separator) {
  Words parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

/// Runs `telar` in one folder of the test with another one as its program folder.
class Telar : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    for (const char* name : {"tmp", "home", "program", "work", "work/folder"}) {
      fs::create_directory(InFolder(name));
    }
    call.folder = InFolder("work");
    call.environment = {"TMPDIR=" + InFolder("tmp").string(), "HOME=" + InFolder("home").string(),
                        "XDG_CACHE_HOME=" + InFolder("cache").string(),
                        "TELARIUM_CARTELLA=" + InFolder("program").string()};
    WriteFile("work/old", "old");
    // Cells "CA*.", "IND" with an accented A, "....": two companion marks are wrong, one clue
    // belongs to no word, and there is no colour part.
    Write("sample", Unisci(Head, "04x03\r\n].[*D.H.\r\nc.h.^.\xDA.\r\nH.H.H.H.\r\n",
                           "  1  11-Caff\xE8\tnero\r\n  1  12-  cinque \x80 \r\n",
                           "  3  31-nessuna\r\n  2  12-poi\r\n"));
    // Four by four cells, with letters and a clue, above a black row.
    Write("square", Unisci(Head, "04x05\r\nt.t.t.t.\r\nH.H.H.H.\r\nH.H.H.H.\r\nH.H.H.H.\r\n",
                           "D*D*D*D*\r\n  1  11-clue\r\n"));
  }

  void TearDown() override {
    EXPECT_EQ(Names("tmp"), Words()) << "left in the system's temporary folder";
    EXPECT_EQ(ReadFile(InFolder("work/old")), "old");
    TelariumTest::TearDown();
  }

  TelarResult Run(const Words& words) {
    call.arguments = words;
    return RunTelar(call);
  }
  TelarResult Run(std::string_view line) { return Run(Split(line, ' ')); }

  // Standard output of a run that succeeds and says nothing.
  template <class Line>
  std::string Out(const Line& line) {
    const TelarResult result = Run(line);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    return result.out;
  }

  // Standard error of a run that prints nothing and ends with that status.
  std::string Told(std::string_view line, int status) {
    const TelarResult result = Run(line);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.out, "");
    return result.err;
  }

  void Write(const Percorso& name, std::string_view bytes) { WriteFile("work" / name, bytes); }
  std::string Read(const Percorso& name) { return ReadFile(InFolder("work" / name)); }
  void MakeDictionary(std::string_view words) {
    Write("list", words);
    EXPECT_NE(Out("diz-crea LessicoItaliano.dat list"), "");
  }
  Words Names(const Percorso& folder) const {
    const std::vector<Percorso> names = ElencaFile(InFolder(folder), "*");
    Words all(names.begin(), names.end());
    for (const auto& one : fs::directory_iterator(InFolder(folder))) {
      if (one.is_directory()) all.push_back(one.path().filename());
    }
    return all;
  }

  TelarCall call;
};

}  // namespace telarium
