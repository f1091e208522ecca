#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/cells.h"

// What the laboratory keeps with a crossword, and the section of the crossword file that holds it:
// lines "name = value" behind the mark, texts of the code page.
//
//   bloccate    words that stay as they are: "C,R,O" or "C,R,V" divided by blanks
//   proprie     the author's own words for this crossword, divided by blanks
//   vietate     words that this crossword must not have, likewise
//   simmetria   no, 180, orizzontale, verticale or quarto
//
// A line that is none of these, and what a known one holds besides, stays as a line of its own:
// newer versions may know it. Blank lines say nothing. A name may come more than once.
namespace telarium {

/// How the black cells of a grid are placed.
enum class Simmetria { No, MezzoGiro, Orizzontale, Verticale, Quarto };

/// The name of a symmetry in files and on the command line, and back.
std::string_view NomeDi(Simmetria simmetria);
std::optional<Simmetria> SimmetriaDi(std::string_view nome);

/// Where a word starts; the place may lie outside the grid, or hold no word any more.
struct InizioDiParola {
  Casella casella;
  int direzione = Orizzontale;

  bool operator==(const InizioDiParola&) const = default;
};

struct Laboratorio {
  std::vector<InizioDiParola> bloccate = {};
  // Words without blanks and control characters: no file holds others.
  std::vector<std::string> proprie = {};
  std::vector<std::string> vietate = {};
  std::optional<Simmetria> simmetria = {};  // none: never chosen
  /// Lines of which this version knows nothing, in the order of the file.
  std::vector<std::string> altreRighe = {};

  bool operator==(const Laboratorio&) const = default;
};

/// Room for every word of the largest grid locked, own and banned at once.
inline constexpr std::size_t MaxByteLaboratorio = 256u << 10;

/// Reads the lines behind the mark, to the end of the file. None when they are more than a file may
/// hold; anything else is taken, or kept as a line.
std::optional<Laboratorio> LeggiLaboratorio(std::string_view righe);

/// The section with its mark as LeggiLaboratorio gives it back; empty when there is nothing in it.
/// None when it would be too large, or a text has what would break its line or its word.
std::optional<std::string> SezioneDelLaboratorio(const Laboratorio& laboratorio);

}  // namespace telarium
