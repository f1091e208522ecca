#pragma once

#include <optional>
#include <string_view>

#include "model/state.h"
#include "platform/codepage.h"

// The crossword file (.tlrm) and the snapshot: 8-bit text, each line ended by CR LF, no signature.
//
//   lines           content
//   4               Schema lines 1 to 4 in the clear; only line 4 is interpreted: columns from
//                   character 14, rows from character 17 ("Dimensioni : 15x13")
//   NumRighe        a row of n cells in 2n characters: at 2c-1 the cell character with its code
//                   raised by 26, at 2c "*" for a black cell and "." for a white one
//   0 or more       a clue: column in 3 characters and row in 3, right-aligned, direction 1 or 2,
//                   "-", and the text to the end of the line. By columns, in them by rows
//   1               "[Colori caselle]" (in any case when read)
//   NumColonne      the ColoreCasella values of one column, top row first, in print form
//
// A file may end before the mark; a short colour part leaves the other colours as they were.
namespace telarium {

/// No crossword comes near this size: 1,590 cells with two clues of 60 characters are some 220 KB.
inline constexpr std::size_t MaxByteCruciverba = 16u << 20;

/// Reads the file `nome` of the program folder (or an absolute `nome`) into Schema, NumColonne,
/// NumRighe and those entries of Definizione and ColoreCasella that it names; clears nothing. A
/// missing file ends the program, any other failure shows its message and gives false: what was
/// read until then stays, and after a bad size both numbers are 0.
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

/// ApriCruciverba for the contents of a file, which may have a tail that is no crossword. `nome` is
/// that of the file, for a message; contents from elsewhere have none.
[[nodiscard]] Apertura ApriTestoDiCruciverba(std::string_view contenuto, const Percorso& nome = {});

/// Ends the program with the message that a crossword file is missing.
[[noreturn]] void TerminaSenzaCruciverba(const Percorso& nome);

/// What LeggiCruciverba does with the contents of a file, and its name for a message.
bool InterpretaCruciverba(std::string_view contenuto, const Percorso& nome = {});

/// Writes the crossword to a path as given; the clues follow TipoCasella as the last redraw left
/// it. The state stays as it is. A failure shows its message, gives false and leaves the old file.
[[nodiscard]] bool ScriviCruciverba(const Percorso& nome);

/// The cause when there is nothing that it could write.
inline constexpr std::string_view CruciverbaNonScrivibile =
    "il cruciverba ha caratteri che il file non ammette, o è troppo grande"_cp;

/// What ScriviCruciverba writes. None when a cell has a character that the file cannot hold, or
/// when it would be too large to be read again.
std::optional<std::string> TestoDelCruciverba();

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

struct Dimensioni {
  int colonne = 0;
  int righe = 0;
};

/// The size that header line 4 of a file declares; none when the state has no room for it, or when
/// it is 0.
std::optional<Dimensioni> DimensioniDichiarate(std::string_view riga4);

/// A grid line as the state holds it from one as the file does, cells and companion marks; none
/// when a byte stands for no cell character.
std::optional<std::string> RigaDiSchema(std::string_view riga);

/// Whether a white cell can hold a character and the file can hold the cell: a letter or another
/// printable character with a code up to 229.
bool LetteraScrivibile(char carattere);

/// Writes a size into the header line of Schema: what it held before character 14 stays.
void ScriviDimensioni(int colonne, int righe);

}  // namespace telarium
