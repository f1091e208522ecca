#pragma once

#include "model/state.h"

// From the start of the process to the first idle moment.
namespace telarium {

/// The crossword file of the command line, an absolute path; empty when there is none.
extern Percorso RigaDiComando;
/// The command line that has been taken up as a file to open; empty until then.
extern Percorso FileComando;
/// Set at the end of the first activation, so that its one-time work runs once.
extern Booleano16 GiaAttivata;

/// The load of the main window up to the point where the window takes its size: working directory,
/// addresses and update check, settings, old snapshot, dictionary. A missing settings file or
/// dictionary ends the program. `cartella` becomes CartellaProgramma.
void CaricaProgramma(const Percorso& cartella);

/// Removes the snapshot, for good: the program ends.
void AbbandonaIstantanea();

/// The rest of the load, once the window has its size: the commands are disabled, and without a
/// command line the splash picture shows.
void MostraAvvio();

/// What an activation of the main window does: at the first one it takes up the command line's
/// file, shows the tip of the day and places what the start leaves to it; each time it takes over
/// what the snapshot holds.
void AttivaForm1();

}  // namespace telarium
