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

// What each layer may include, by folders of the sources. A folder's windows are a layer above all
// logic.
const Folders Core = {
    "platform",           "model",  "dictionary", "auxiliary", "editor",   "fill",
    "crossworddialogs",   "clues",  "output",     "lexicon",   "composer", "laboratory",
    "telarium_version.h", "history"};

Folders With(Folders folders, const Folders& more) {
  folders.insert(more.begin(), more.end());
  return folders;
}

const std::map<std::string, Folders> Allowed = {
    {"platform", {"platform"}},
    {"model", {"platform", "model"}},
    {"history", {"platform", "model", "history"}},
    {"auxiliary", {"platform", "model", "auxiliary", "telarium_version.h"}},
    {"dictionary", {"platform", "dictionary"}},
    {"fill", {"platform", "model", "dictionary", "fill"}},
    {"editor",
     {"platform", "model", "history", "dictionary", "auxiliary", "fill", "editor",
      "telarium_version.h"}},
    {"lexicon", {"platform", "dictionary", "lexicon"}},
    {"crossworddialogs", {"platform", "model", "editor", "crossworddialogs"}},
    {"clues", {"platform", "model", "dictionary", "lexicon", "auxiliary", "editor", "clues"}},
    {"output", {"platform", "model", "auxiliary", "editor", "output"}},
    {"composer", {"platform", "lexicon", "composer"}},
    {"laboratory",
     {"platform", "model", "dictionary", "lexicon", "composer", "clues", "laboratory"}},
    {"platform/common", {"platform", "platform/common"}},
    {"platform/console", {"platform", "platform/common", "platform/console"}},
    {"platform/qt", {"platform", "platform/common", "platform/qt"}},
    {"windows", With(Core, {"platform/qt", "windows"})},
    {"telar", With(Core, {"platform/console", "telar"})},
    {"telarium", With(Core, {"platform/qt", "windows", "telarium"})},
};

// Folders of functions on values, and what would give them a state, a user or a folder that no call
// named.
const Folders OfValues = {"fill", "history", "lexicon", "composer", "laboratory"};
const Folders Shared = {"model/state.h", "platform/platform.h", "platform/program_folder.h",
                        "dictionary/open_dictionary.h"};

// The layer of a source file by its path below src.
std::string LayerOf(const std::string& path) {
  if (path.find("/windows/") != std::string::npos) return "windows";
  const std::string first = path.substr(0, path.find('/'));
  if (first != "platform") return first;
  const fs::path folder = fs::path(path).parent_path();
  return folder.generic_string();
}

bool IsWithoutQt(const std::string& layer) {
  return layer != "windows" && layer != "platform/qt" && layer != "telarium";
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
  const std::string target = LayerOf(name);
  EXPECT_TRUE(!own || Allowed.at(folder).contains(target)) << "an include points upward";
  EXPECT_FALSE(OfValues.contains(folder) && Shared.contains(name)) << "more than values";
  EXPECT_FALSE(IsWithoutQt(folder) && !own && name.starts_with("Q")) << "Qt below the windows";
}

TEST(Layers, IncludesNeverPointUpward) {
  const fs::path sources = fs::path(TELARIUM_SOURCE_DIR) / "src";
  int includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(sources)) {
    const fs::path relative = entry.path().lexically_relative(sources);
    if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
    const std::string folder = LayerOf(relative.generic_string());
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
