#pragma once

#include "platform/files.h"

// The commands of the main window that need no dialog of their own.
namespace telarium {

/// Menudef, and whatever leads back to editing: presses the Edit button and runs CambiaModoEdit.
void EntraInModifica();

/// The Edit button of the toolbar has been turned over, or was pressed: sets ModoGriglia to
/// whether it is pressed, and redraws.
void CambiaModoEdit();

/// A click on Command3d15: leaves a print preview, allows all commands again, redraws and enters
/// editing.
void ChiudiAnteprima();

/// MenuAiuto, MenuInfo and MenuLudarium begin or end with it: leaves a print preview if one shows.
void LasciaAnteprima();

/// menuSalva: saves under the current name and sets SchemaModificato to 0. A failure shows its
/// message and leaves both, and so does a crossword without a name or without a grid.
void SalvaCruciverba();

/// Asks whether to save a changed crossword, and does. Either way the caller goes on.
void ChiediSalvataggio();

/// MenuEsci: ends the program, after the saving question.
void EsciDalProgramma();

/// MenuL1 to MenuL4: opens the dictionary of a language, 1 Italian, 2 English, 3 Latin, 4 French.
/// Nothing happens when it is the current one.
void CambiaLingua(int lingua);

/// MenuVis and Menurett: turn their setting over and write the settings file.
void CommutaStampaSoluzioni();
void CommutaRettangoloParola();

/// MenuLudarium: starts the companion program.
void LanciaLudarium();

/// MenuAiuto: opens the help file.
void ApriAiuto();

/// Opens a crossword that another start of the program was given, as the open dialog does: after
/// the saving question, for the activation that follows to show. A file that is no crossword shows
/// a message and leaves the one that was there.
void ApriDaFuori(const Percorso& nome);

/// The check marks of the menus, from the settings and the language as they are.
void AggiornaSpunte();

}  // namespace telarium
