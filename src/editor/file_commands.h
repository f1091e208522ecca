#pragma once

#include "model/crossword_file.h"
#include "platform/files.h"

// The commands that make, open and save crosswords, and the end of the program. Those that leave
// the crossword ask first whether to save a changed one. A Cancel there lets them go on; a save
// that was wanted and did not come about stops those that would lose the changes at once.
namespace telarium {

/// MenuNuovo, MenuApri and Menuschemi: show FormNew, Form2 or FormModels. The crossword that the
/// window leaves in the snapshot shows at the activation that follows; without one the splash
/// picture comes back.
void NuovoCruciverba();
void ApriConFinestra();
void GestisciModelli();

/// menuSalva: saves under the current name and sets SchemaModificato to 0. A failure shows its
/// message and leaves both. A crossword that was never saved, or has no grid, goes to SalvaConNome;
/// so does one whose file holds what would be lost, unless the user wants it written over.
void SalvaCruciverba();

/// MenuSalvaCN: shows TelarSav.
void SalvaConNome();

/// Asks whether to save a changed crossword, and does. False when the user wanted it saved and it
/// is not: what comes next must not cost the changes.
bool ChiediSalvataggio();

/// MenuEsci: ends the program, after the saving question, unless the save that was wanted failed.
void EsciDalProgramma();

/// Takes a crossword file over, by its path: into the state and the snapshot, for the activation
/// that follows to show, and sets ModoGriglia for editing. A file that is missing or has no valid
/// header is told, and gives false: the crossword that was there stays. One that breaks off later
/// is told, and is taken as far as it goes; a snapshot that cannot be written is told, and is tried
/// again later.
[[nodiscard]] bool ApriFileDiCruciverba(const Percorso& nome);

/// Opens a crossword that another start of the program was given, after the saving question, unless
/// the save that was wanted failed.
void ApriDaFuori(const Percorso& nome);

}  // namespace telarium
