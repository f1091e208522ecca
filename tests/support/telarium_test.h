#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "dictionary/open_dictionary.h"
#include "editor/geometry.h"
#include "model/state.h"
#include "platform/temporary.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

namespace telarium {

/// The base of all tests of the core: the state as at program start, a fresh scripted platform, and
/// a program folder of the test's own, removed at its end.
class TelariumTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  ScriptedPlatform platform;
  ScriptedUser& user = platform.user;
  ScriptedMachine& machine = platform.machine;
  Dizionario& dictionary = IlDizionario();

  /// A path in the program folder.
  Percorso InFolder(const Percorso& name) const { return folder_.Nome() / name; }

  /// Writes a file into the program folder and gives its path; reads one back, whole.
  Percorso WriteFile(const Percorso& name, std::string_view bytes) const;
  static std::string ReadFile(const Percorso& path);

  /// A told message and, on a line of its own, the name of a file and why it failed.
  static std::string WithCause(std::string_view told, const Percorso& path,
                               std::string_view cause) {
    return std::string(told) + '\n' + path.string() + ": " + std::string(cause) + '.';
  }

  /// Writes a dictionary of these words (of 3 to 15 letters, in any order) into the program folder
  /// and opens it.
  void OpenDictionary(const std::vector<std::string>& words,
                      const Percorso& name = "LessicoItaliano.dat");

  /// Makes a drawing the current crossword, one text per row: "#" black, "." empty, any other a
  /// letter. Its clues, colours and laboratory stay those of the crossword before.
  static void Draw(const std::vector<std::string>& rows);

  /// The current grid as such a drawing, from LetteraCasella and from Schema.
  static std::vector<std::string> Drawing();
  static std::vector<std::string> DrawingOfSchema();

 private:
  CartellaTemporanea folder_;
};

/// The first place in which two byte strings differ, in words; empty when they are equal.
std::string FirstDifference(std::string_view actual, std::string_view expected);

}  // namespace telarium
