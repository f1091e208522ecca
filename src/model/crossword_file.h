#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/crossword_format.h"
#include "model/state.h"
#include "platform/codepage.h"

// The crossword file and the snapshot, and the document: model/crossword_reader.h and
// crossword_writer.h do the work on values.
namespace telarium {

/// What became of a crossword that the user wanted opened.
enum class Apertura {
  Intera,
  Parziale,   // up to a read error, which was told
  Rifiutata,  // told; the document is as it was
  Assente,    // there is no such file: not told; the document is as it was
};

/// Opens a crossword for the user, by its path as given, in place of the one that is open. A file
/// that cannot be read or has no valid header changes nothing.
[[nodiscard]] Apertura ApriCruciverba(const Percorso& nome);

/// The same with the contents of a page, behind whose colours nothing is read: only a whole
/// crossword is taken, since it goes on under the name, and with the mark, of the one that was
/// open. False when there was none, which has been told.
[[nodiscard]] bool ApriTestoDiCruciverba(std::string_view contenuto);

/// Ends the program with the message that a crossword file is missing.
[[noreturn]] void TerminaSenzaCruciverba(const Percorso& nome);

/// Writes a crossword, or the document's, to a path as given. A failure shows its message, gives
/// false and leaves the old file.
[[nodiscard]] bool ScriviCruciverba(const Cruciverba& cruciverba, const Percorso& nome);
[[nodiscard]] bool ScriviCruciverba(const Percorso& nome);

/// Saves the document in this form, which may have another author, and under this name, and clears
/// its mark. False when it cannot be written, which has been told; then all is as it was.
[[nodiscard]] bool SalvaComeFile(Cruciverba cruciverba, const Percorso& nome);

/// The cause when there is nothing that could be written.
inline constexpr std::string_view CruciverbaNonScrivibile =
    "il cruciverba ha caratteri che il file non ammette, o è troppo grande"_cp;

/// The bytes of the document's file. None when they could not be read again: a cell has a character
/// that the file cannot hold, or it would be too large.
std::optional<std::string> TestoDelCruciverba();

/// The same for others to read, without what the laboratory keeps.
std::optional<std::string> TestoDaPubblicare();

// The snapshot: the document, or what is about to become it, for other programs to see and to
// change. It is never forced to the disk.

/// Writes it; a failure shows its message, gives false and leaves the old one.
[[nodiscard]] bool ScriviIstantanea();
[[nodiscard]] bool ScriviIstantanea(const Cruciverba& cruciverba);

/// The same without a message: for a redraw, which runs at every change of the window's size. The
/// next commit tells what is wrong.
bool AggiornaIstantanea();

/// Looks whether another program has changed it: what that left is taken as a change of the
/// document, over which it is read; its faults are told, and after one of the size the grid has
/// none. A snapshot that is gone is written again.
void RivediIstantanea();

/// Removes it if there is one.
void EliminaIstantanea();

}  // namespace telarium
