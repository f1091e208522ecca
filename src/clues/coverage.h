#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files.h"

// Which words have clues, from a side index of the encyclopedia, so that nobody reads a store of
// half a million clues to know that.
namespace telarium {

/// How many clues of each family a word has.
struct ConteggioDefinizioni {
  int facili = 0;
  int difficili = 0;

  bool Alcuna() const { return facili + difficili > 0; }
  bool operator==(const ConteggioDefinizioni&) const = default;
};

/// The words of a store that have clues. A value that never changes; copies share it.
class Copertura {
 public:
  /// None: no word has a clue.
  Copertura() = default;

  ConteggioDefinizioni Di(std::string_view parola) const;
  /// How many words have clues.
  int Parole() const;

  // The rest is to be designed by whoever writes it: iteration, the kit's clues laid over it.
};

/// The coverage of the encyclopedia of a program folder, from its side index in the user's cache
/// folder when that is of the store as it stands, else from the store, whose index is then written
/// anew; where that cannot be written it is made in memory. A store that cannot be read gives none
/// and its cause in Italian.
std::shared_ptr<const Copertura> CoperturaDi(const Percorso& enciclopedia, std::string& causa);

}  // namespace telarium
