#pragma once

#include "model/state.h"

// The settings of drawing and printing, and the file telarium.INI that keeps them from one run to
// the next.
namespace telarium {

/// Typeface of the letters; the routines that use it take an empty one for "Arial".
extern std::string NomeFont;

// Percent of the cell side, but for SpessoreBordo.
extern std::int16_t AltezzaCaratteri;     // type size of the letters
extern std::int16_t AltezzaNumeri;        // type size of the clue numbers
extern std::int16_t PercentualeRiquadro;  // side of the square that fills a black cell
extern std::int16_t DistanzaDaSpigolo;    // of the clue number from the cell's top left corner
extern std::int16_t DistanzaDaCentro;     // of the letter from the cell's middle, downward
extern std::int16_t SpessoreBordo;        // lines of the frame round the grid

/// The check mark of Menurett: the word under the pointer gets a rectangle.
extern Booleano16 RettangoloParola;
/// The check mark of MenuVis: solutions are left out of the print. Any number but 0 is true.
extern Booleano16 StampaSoluzioni;
/// Kept and written back; nothing else reads it.
extern Booleano16 TastoSin;
/// While set, the redraw leaves out the letters. Not in the file.
extern Booleano16 NascondiSoluzioni;

enum class EsitoImpostazioni { Lette, Assenti, Illeggibili };

/// Takes the settings from telarium.INI in the program folder. A key that is missing leaves its
/// setting as it was; what is no number counts as 0, and what is too big for 16 bits as the nearest
/// number that fits. `errore` says why the file could not be read.
EsitoImpostazioni LeggiImpostazioni(std::error_code& errore);

/// The same for a caller who tells no cause.
EsitoImpostazioni LeggiImpostazioni();

/// The settings file of the program folder.
Percorso FileImpostazioni();

/// LeggiImpostazioni for a text of the file's form.
void InterpretaImpostazioni(std::string_view testo);

/// Gives the geometry the values of the settings file that a fresh installation starts with.
void ImpostazioniIniziali();

/// Writes all settings to telarium.INI in the program folder. A failure shows its message and
/// leaves the old file.
void ScriviImpostazioni();

}  // namespace telarium
