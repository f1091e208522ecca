#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/cells.h"

// The crossword file (.tlrm) and the snapshot: 8-bit text, each line ended by CR LF, no signature.
//
//   lines           content
//   4               header lines 1 to 4 in the clear; only line 4 is interpreted: columns from
//                   character 14, rows from character 17 ("Dimensioni : 15x13")
//   rows            a row of n cells in 2n characters: at 2c-1 the cell character with its code
//                   raised by 26, at 2c "*" for a black cell and "." for a white one
//   0 or more       a clue: column in 3 characters and row in 3, right-aligned, direction 1 or 2,
//                   "-", and the text to the end of the line. By columns, in them by rows
//   1               "[Colori caselle]" (in any case when read)
//   columns         the colours of one column, top row first, in print form
//   0 or 1          "[Laboratorio]", in any case when read, only if a line follows
//   0 or more       what the laboratory keeps: model/laboratory_section.h
//
// A file may end before the mark of the colours; a short colour part leaves the other colours as
// they were. Readers that know no laboratory stop before it.
namespace telarium {

/// No crossword comes near this size: 1,590 cells with two clues of 60 characters are some 220 KB.
inline constexpr std::size_t MaxByteCruciverba = 16u << 20;

inline constexpr std::string_view SegnoColori = "[Colori caselle]";
inline constexpr std::string_view SegnoLaboratorio = "[Laboratorio]";

struct Dimensioni {
  int colonne = 0;
  int righe = 0;
};

/// The size that header line 4 of a file declares; none when the state has no room for it, or when
/// it is 0.
std::optional<Dimensioni> DimensioniDichiarate(std::string_view riga4);

/// Header line 4 with another size: what it holds before character 14 stays.
std::string ConDimensioni(std::string riga4, Dimensioni dimensioni);

/// A grid line as the state holds it from one as the file does, cells and companion marks; none
/// when a byte stands for no cell character.
std::optional<std::string> RigaDiSchema(std::string_view riga);

/// The other way, with the marks in step; none when a cell character has no code left after the
/// shift.
std::optional<std::string> RigaDelFile(std::string riga);

/// A grid line with its marks in step.
std::string ConSegni(std::string riga);

/// Whether a white cell can hold a character and the file can hold the cell: a letter or another
/// printable character with a code up to 229.
bool LetteraScrivibile(char carattere);

/// Where a grid line has the character of a column, counted from 0.
constexpr std::size_t IndiceInRiga(int colonna) {
  return 2 * static_cast<std::size_t>(colonna) - 2;
}

/// Writes a cell character into a grid line and leaves its mark. A line that is too short for the
/// cell is first made longer by empty white cells.
void ScriviInRiga(std::string& riga, int colonna, char carattere);

}  // namespace telarium
