#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "clues/clue_list.h"

namespace telarium {

/// Clues from which an encyclopedia is made.
using VociDiEnciclopedia = std::vector<VoceDiLista>;

/// What became of the lines of a list.
struct EsitoLista {
  int tralasciate = 0;       // lines that are no entry
  int primaTralasciata = 0;  // number of the first one, from 1
};

/// Takes a list in UTF-8 to `voci`. Blank lines are left out without being counted.
EsitoLista AggiungiVoci(std::string_view utf8, VociDiEnciclopedia& voci);

/// What became of an encyclopedia to be written.
struct EsitoEnciclopedia {
  std::string errore;  // why nothing was replaced, for the user; empty when the file is written
  int parole = 0;
  int definizioni = 0;
};

/// Makes telarium1.mdb of the program folder anew: a row for each word, its clues in the order of
/// the entries, one that is there already left out. The old file is replaced when the new one is
/// complete.
EsitoEnciclopedia ScriviEnciclopedia(VociDiEnciclopedia voci);

}  // namespace telarium
