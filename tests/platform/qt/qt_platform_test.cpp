#include "platform/qt/qt_platform.h"

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "platform/commitment.h"
#include "platform/temporary.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

// In a process of its own, which the end is to be that of.
TEST(PlatformTest, TheEndTellsHowAndLeavesNothingBehind) {
  const QTemporaryDir temporary;  // not one of those that the end removes
  const Percorso folder = temporary.path().toStdString();
  const Percorso first = folder / "first";
  qputenv("TMPDIR", temporary.path().toUtf8());
  for (const auto& [how, status] : {std::pair(Fine::Regolare, 0), {Fine::Fatale, 1}}) {
    EXPECT_EXIT(
        {
          const CartellaTemporanea left;
          std::ofstream(left.Nome() / "file") << "x";
          const Impegno older([&] { fs::rename(first, folder / "second"); });
          const Impegno younger([&] { std::ofstream(first) << "x"; });
          PiattaformaQt().Termina(how);
        },
        ::testing::ExitedWithCode(status), "");
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
      names.push_back(entry.path().filename());
    EXPECT_EQ(names, std::vector<std::string>{"second"});
  }
  qunsetenv("TMPDIR");
}

}  // namespace
}  // namespace telarium
