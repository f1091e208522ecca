#pragma once

#include <cstddef>

#include "history/chronology.h"

// Undo, redo and recovery as commands of the main window.
namespace telarium {

/// The history of the open document; null where nobody keeps one, as in `telar`: then the commands
/// do nothing.
Cronologia* LaCronologia();

/// Sets it; null takes it away. The caller keeps it alive.
void ImpostaCronologia(Cronologia* cronologia);

/// MenuAnnulla and MenuRipeti: take the last change back, or bring it again, and show the crossword
/// as it then is, with its name; both leave a print preview. A tool that is in use stays so.
void AnnullaModifica();
void RipetiModifica();

/// MenuCronologia: shows StoriaDelleModifiche.
void MostraCronologia();

/// Goes to a step of the open crossword's line, from 0, likewise.
void VaiAllaModifica(std::size_t posto);

/// At the start: shows LavoroNonSalvato if earlier runs have left work that is in no file.
void OffriLavoroPerso();

/// Opens lost work in place of the crossword that is open, for the activation that follows to show.
/// False when it cannot be had any more, which has been told.
[[nodiscard]] bool RecuperaLavoro(const LavoroPerso& lavoro);

/// Behind a command: the entries of the menu say what they act on and are enabled where there is
/// something; and a history that cannot be written is told, once.
void RiferisciSullaCronologia();

}  // namespace telarium
