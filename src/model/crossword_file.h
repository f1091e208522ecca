#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/crossword_format.h"
#include "model/state.h"
#include "platform/codepage.h"

// The crossword file and the current crossword: model/crossword_reader.h and crossword_writer.h do
// the work on values.
namespace telarium {

/// Reads the file `nome` of the program folder (or an absolute `nome`) into Schema, NumColonne,
/// NumRighe, those entries of Definizione and ColoreCasella that it names, and, if it has a section
/// of it, LaboratorioDelCruciverba; clears nothing. A missing file ends the program, any other
/// failure shows its message and gives false: what was read until then stays, and after a bad size
/// both numbers are 0.
bool LeggiCruciverba(const Percorso& nome);

/// What became of a crossword that the user wanted opened.
enum class Apertura {
  Intera,
  Parziale,   // up to a read error, which was told
  Rifiutata,  // told; the state is as it was
  Assente,    // there is no such file: not told; the state is as it was
};

/// Opens a crossword for the user, by its path as given: as LeggiCruciverba, but a file that cannot
/// be read or has no valid header changes nothing, and any other clears by SvuotaCruciverba what is
/// there before its grid is taken.
[[nodiscard]] Apertura ApriCruciverba(const Percorso& nome);

/// ApriCruciverba for contents from elsewhere than a file. Behind the colours stands the rest of a
/// page, of which nothing is read.
[[nodiscard]] Apertura ApriTestoDiCruciverba(std::string_view contenuto);

/// Ends the program with the message that a crossword file is missing.
[[noreturn]] void TerminaSenzaCruciverba(const Percorso& nome);

/// What LeggiCruciverba does with the contents of a file, and its name for a message: contents from
/// elsewhere have none.
bool InterpretaCruciverba(std::string_view contenuto, const Percorso& nome = {});

/// Writes the crossword to a path as given. The state stays as it is. A failure shows its message,
/// gives false and leaves the old file.
[[nodiscard]] bool ScriviCruciverba(const Percorso& nome);

/// The cause when there is nothing that it could write.
inline constexpr std::string_view CruciverbaNonScrivibile =
    "il cruciverba ha caratteri che il file non ammette, o è troppo grande"_cp;

/// What ScriviCruciverba writes. None when it could not be read again: a cell has a character that
/// the file cannot hold, or it would be too large.
std::optional<std::string> TestoDelCruciverba();

/// The same for others to read, without what the laboratory keeps.
std::optional<std::string> TestoDaPubblicare();

/// LeggiCruciverba and ScriviCruciverba with the snapshot, which is never forced to the disk.
bool LeggiIstantanea();
[[nodiscard]] bool ScriviIstantanea();

/// Whether the last writing of the snapshot failed: it holds less than the state.
bool IstantaneaSuperata();

/// Removes the snapshot if there is one.
void EliminaIstantanea();

/// ScriviIstantanea without a message: for a redraw, which runs at every change of the window's
/// size. The next commit tells what is wrong. Gives whether it could be written.
bool AggiornaIstantanea();

/// Writes a size into the header line of Schema: what it held before character 14 stays.
void ScriviDimensioni(int colonne, int righe);

}  // namespace telarium
