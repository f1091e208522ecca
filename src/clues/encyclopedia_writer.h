#pragma once

#include <functional>
#include <string>
#include <vector>

#include "clues/clue_list.h"
#include "platform/files.h"

namespace telarium {

/// Asked again and again during a work, with the share of it that is done, from 0 to 1: false
/// breaks it off.
using ProsegueOpera = std::function<bool(double parte)>;

/// What became of an encyclopedia to be written.
struct EsitoEnciclopedia {
  std::string errore;       // why nothing was written, for the user
  bool interrotta = false;  // broken off: nothing was written either
  int parole = 0;
  int definizioni = 0;

  bool Fatta() const { return !interrotta && errore.empty(); }
};

/// Makes telarium1.mdb of the program folder anew: a row for each word, its clues in the order of
/// the entries, one that is there already left out. The old contents are replaced in one step when
/// the new ones are complete, and not while another program is writing to it.
EsitoEnciclopedia ScriviEnciclopedia(std::vector<VoceDiLista> voci,
                                     const ProsegueOpera& prosegue = {});

/// Makes the same where a folder has none. One that another program has made there meanwhile stays,
/// and counts as done.
EsitoEnciclopedia CreaEnciclopedia(const Percorso& cartella, std::vector<VoceDiLista> voci,
                                   const ProsegueOpera& prosegue);

}  // namespace telarium
