#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

// Keeps the layers of the source tree apart: an include never points upward, and the core knows no
// window.
namespace telarium {
namespace {

namespace fs = std::filesystem;

using Folders = std::set<std::string>;

// What the logic of each folder may include.
const std::map<std::string, Folders> Allowed = {
    {"platform", {"platform"}},
    {"model", {"platform", "model"}},
    {"editor", {"platform", "model", "editor"}},
    {"dictionary", {"platform", "model", "dictionary"}},
    {"fill", {"platform", "model", "editor", "dictionary", "fill"}},
    {"crossworddialogs", {"platform", "model", "editor", "crossworddialogs"}},
    {"telar",
     {"platform", "model", "editor", "dictionary", "fill", "crossworddialogs", "telar",
      "telarium_version.h"}},
};

bool BelongsToCore(const fs::path& relative) {
  const std::string text = relative.generic_string();
  return text.find("/windows/") == std::string::npos && !text.starts_with("platform/qt/") &&
         !text.starts_with("platform/console/") && !text.starts_with("telar/") &&
         !text.starts_with("telarium/");
}

// What is included by a line of source; empty when it includes nothing.
std::string IncludedBy(const std::string& line) {
  if (!line.starts_with("#include ")) return {};
  const std::size_t open = line.find_first_of("\"<");
  return line.substr(open, line.find_last_of("\">") - open + 1);
}

void CheckInclude(const fs::path& file, const std::string& folder, const std::string& included) {
  SCOPED_TRACE(file.string() + " includes " + included);
  const bool own = included.front() == '"';
  const std::string name = included.substr(1, included.size() - 2);
  const std::string target = name.substr(0, name.find('/'));
  EXPECT_TRUE(!own || Allowed.at(folder).contains(target)) << "an include points upward";
  if (!BelongsToCore(file)) return;
  EXPECT_FALSE(!own && name.starts_with("Q")) << "the core includes Qt";
  EXPECT_FALSE(name.starts_with("platform/qt/") || name.starts_with("platform/console/") ||
               name.find("/windows/") != std::string::npos)
      << "the core includes a window or a realisation of the platform";
}

TEST(Layers, IncludesNeverPointUpward) {
  const fs::path sources = fs::path(TELARIUM_SOURCE_DIR) / "src";
  int includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(sources)) {
    const fs::path relative = entry.path().lexically_relative(sources);
    if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
    const std::string folder = relative.begin()->string();
    ASSERT_TRUE(Allowed.contains(folder)) << "folder without a layer: " << relative;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      const std::string included = IncludedBy(line);
      if (included.empty()) continue;
      CheckInclude(relative, folder, included);
      ++includes;
    }
  }
  EXPECT_GT(includes, 50) << "the sources were not found";
}

}  // namespace
}  // namespace telarium
