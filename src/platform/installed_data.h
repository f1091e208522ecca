#pragma once

#include <system_error>
#include <vector>

#include "platform/files.h"

// How the data of a newer package reach a program folder that was filled by an older one.
namespace telarium {

/// The folder of the installed data that holds the clue lists. It stays there: the encyclopedia of
/// the program folder is made from it.
inline constexpr const char* CartellaListeInstallate = "clues";

/// And the one that holds the lexicons, which are opened where they are.
inline constexpr const char* CartellaLessiciInstallati = "lexicon";

/// Whether a folder of the installed data, by its name in them, is never copied into a program
/// folder.
bool RestaInstallata(const Percorso& nome);

/// A file, or a folder with all in it, that could not be copied: its name below the installed data.
struct CopiaFallita {
  Percorso nome;
  std::error_code errore;
};

/// What becomes of a file that the user changed.
enum class FileModificati {
  Lascia,  // it stays; a later start may ask
  Chiedi,  // one question for all of them, once for each version of the installed files
};

/// The file of the user's own folder that tells which versions of the installed files it has met:
/// one line for each, "impronta TAB timbro TAB nome".
inline constexpr const char* NomeRegistroInstallati = ".telarium.dati";

/// The folder of the program folder that takes a changed file when the installed one replaces it.
inline constexpr const char* CartellaSostituiti = "File sostituiti";

/// Replaces each file of `cartella` that is still one of an older package by the one below
/// `installati`, and treats changed ones as `modificati` tells. Settings, addresses and crosswords
/// are the user's own once they are changed, and never asked about. Gives what could not be
/// replaced; that is tried again at the next start.
std::vector<CopiaFallita> AggiornaCartella(const Percorso& installati, const Percorso& cartella,
                                           FileModificati modificati);

}  // namespace telarium
