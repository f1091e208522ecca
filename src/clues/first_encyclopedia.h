#pragma once

#include "platform/files.h"

// The encyclopedia of a new user. It is handed on to nobody, as the licences of the clue lists must
// not meet in one file that is: each user's one is made on their machine, from the installed lists.
namespace telarium {

/// Whether a folder has no telarium1.mdb, whatever its case, and the installed data hold clue lists
/// to make one from.
bool MancaEnciclopedia(const Percorso& installati, const Percorso& cartella);

/// Makes the missing telarium1.mdb of a folder from the installed clue lists, in the order of their
/// names, and shows a wait that can be broken off. False when there still is none: a failure has
/// been told, and nothing is left in the folder.
bool PreparaEnciclopedia(const Percorso& installati, const Percorso& cartella);

}  // namespace telarium
