#pragma once

#include <string_view>

#include "clues/encyclopedia.h"

namespace telarium {

/// Tells which clues are hard: those that stand in the hard family of their word and not in the
/// easy one too. Opens the encyclopedia at the first question; from one that cannot be read no
/// clue is hard.
class DefinizioniDifficili {
 public:
  bool Ha(std::string_view parola, std::string_view definizione);

 private:
  bool Cerca(std::string_view parola, std::string_view definizione);

  EnciclopediaAperta enciclopedia_;
  bool illeggibile_ = false;
};

}  // namespace telarium
