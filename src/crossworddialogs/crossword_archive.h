#pragma once

#include "platform/files.h"

// What the windows that open and save a crossword do, apart from their lists.
namespace telarium {

/// The pattern of the files that they list.
inline constexpr const char* ModelloCruciverba = "*.tlr*";

/// The folder in which they start: "Archivio cruciverba" in the program folder, whatever the case
/// of its letters, which is made when it is missing; the program folder itself where it cannot be
/// made or read.
Percorso CartellaArchivio();

/// Gives up opening: without a crossword ModoGriglia tells that the surface shows no grid.
void RinunciaAdAprire();

/// The author's data of the open crossword, and the name that it is to be saved under.
std::string AutoreDelCruciverba();
Percorso NomeProposto();

/// Saves the open crossword as `nome`, which belongs to `cartella` unless it is a full name and
/// gets the ending ".tlrm" when it has none, with the author's data. Asks before it writes over a
/// file; when the user gives up, only the snapshot is written. Gives whether the window is done: a
/// failure has been told, and has changed nothing.
[[nodiscard]] bool SalvaNellArchivio(const Percorso& cartella, const Percorso& nome,
                                     const std::string& autore);

}  // namespace telarium
