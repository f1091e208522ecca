#pragma once

#include "platform/files.h"

// What the new-crossword dialogs leave behind: a crossword without clues and colours as the open
// one, unchanged and named NomeMaiSalvato, and its snapshot. After a refusal or a failure nothing
// has changed.
namespace telarium {

inline constexpr int MinCelle = 3;  // of a side of a new grid

inline constexpr const char* NomeModelliIniziale = "STANDARD.dfc";

enum class EsitoNuovo {
  Fatto,
  ColonneRifiutate,  // told with a beep and a message; the dialog puts the focus there
  RigheRifiutate,    // likewise
  ModelloAssente,    // there is no model of that number; nothing is shown
  ModelloRifiutato,  // told: the file cannot be used, or the model is too large for a grid
  NonScritto,        // the snapshot could not be written; told
};

/// A new empty grid.
EsitoNuovo NuovoVuoto(int colonne, int righe);

/// A new grid from model number `numero`, from 0, of a model file given by its path. A missing file
/// is told and gives ModelloRifiutato; a bad row or character ends the program.
EsitoNuovo NuovoDaModello(const Percorso& fileModelli, int numero);

}  // namespace telarium
