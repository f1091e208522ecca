#pragma once

#include <string>
#include <vector>

#include "clues/clue_list.h"

namespace telarium {

/// What became of an encyclopedia to be written.
struct EsitoEnciclopedia {
  std::string errore;  // why nothing was replaced, for the user; empty when the file is written
  int parole = 0;
  int definizioni = 0;
};

/// Makes telarium1.mdb of the program folder anew: a row for each word, its clues in the order of
/// the entries, one that is there already left out. The old file is replaced when the new one is
/// complete, and not while another program is writing to it.
EsitoEnciclopedia ScriviEnciclopedia(std::vector<VoceDiLista> voci);

}  // namespace telarium
