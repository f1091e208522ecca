#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/installed_data.h"

// Which folder is the program folder, and how a new user's one gets its contents.
namespace telarium {

struct SceltaCartella {
  Percorso cartella;
  /// The user's own folder gets what is missing from the installed data; a folder that was named,
  /// or that lies beside the executable, is used as it is.
  bool daRiempire = false;
};

/// The program folder: the one that the environment variable TELARIUM_CARTELLA names; else the
/// folder of the executable when telarium.INI lies in it; else $XDG_DATA_HOME/telarium (or
/// ~/.local/share/telarium). Always an absolute path; empty when none of them can be formed.
SceltaCartella ScegliCartellaProgramma();

/// The folder of the running executable; empty when the system does not tell.
Percorso CartellaEseguibile();

/// Where the installed data lie, seen from the executable.
Percorso CartellaDatiInstallati();

/// Where the lexicons lie, NAME.lexicon for each language and for the kit of short entries: among
/// the installed data, so that a newer package brings newer ones.
Percorso CartellaLessici();

/// Copies into `cartella` each file below `installati` that is missing there, and makes folders as
/// needed, the case of all names aside; what RestaInstallata names and hidden files stay behind.
/// Nothing that exists is written over. Gives what could not be copied.
std::vector<CopiaFallita> RiempiCartella(const Percorso& installati, const Percorso& cartella);

/// Chooses the program folder and, when it is the user's own, brings it what is missing there of
/// the installed data. What cannot be copied is told. No folder, told, when there is none.
SceltaCartella PreparaCartellaProgramma();

/// Brings the user's own program folder in step with the installed data, as AggiornaCartella, and
/// tells what could not be replaced. For the one desktop that works in the folder, or when none
/// does: an open dictionary must not change.
void AggiornaCartellaProgramma(const Percorso& cartella, FileModificati modificati);

/// The lock file of the desktop that works in a program folder.
inline constexpr const char* NomeBlocco = ".telarium.lock";

}  // namespace telarium
