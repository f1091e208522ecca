#pragma once

#include <functional>

#include "dictionary/dictionary.h"

// Dictionaries before the eyes of the user.
namespace telarium {

/// The one that is open in this program.
Dizionario& IlDizionario();

/// Opens a dictionary. A missing file ends the program, after a message; one that cannot be read
/// shows a message, counts as empty and gives false.
bool ApriDizionario(Dizionario& dizionario);

/// Opens another dictionary of the folder of the open one, runs an operation with it, then opens
/// the open one anew. One whose file is gone ends the program; one that cannot be read is told, and
/// nothing is run.
void ConDizionario(Dizionario& aperto, const Percorso& nome,
                   const std::function<void(const Dizionario&)>& operazione);

}  // namespace telarium
