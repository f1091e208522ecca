#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "clues/clue_family.h"
#include "platform/files.h"

// The clues of the kit of short entries: a list that is installed with the program. They count, and
// are drawn, also where the user's encyclopedia is from before them.
namespace telarium {

/// The kit's list among the installed ones, which may be missing.
Percorso ListaDelCorredo();

/// A value. Words are in capitals, clues in the code page, in the order of the list.
class DefinizioniDelCorredo {
 public:
  /// None at all.
  DefinizioniDelCorredo() = default;
  /// Those of a list in the form of clue_list.h. A list that cannot be read has none.
  explicit DefinizioniDelCorredo(const Percorso& lista);

  /// The clues of a word, easy ones first; empty for a word that the kit does not have. The views
  /// are valid as long as the kit is.
  std::vector<std::string_view> Di(std::string_view parola, QualiDefinizioni quali) const;

  /// Calls `visita` with each word, by the order of the bytes.
  void PerOgniParola(const std::function<void(const std::string& parola)>& visita) const;

 private:
  using Famiglie = std::array<std::vector<std::string>, 2>;  // easy, hard
  std::map<std::string, Famiglie, std::less<>> parole_;
};

}  // namespace telarium
