#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Plain lists of clues, from which the encyclopedia is built: one clue a line, in UTF-8, as word
// TAB family TAB clue, the family being F for an easy clue and D for a hard one.
namespace telarium {

/// Far above the largest list there is; it is held in memory.
inline constexpr std::size_t MaxByteLista = 256u << 20;

struct VoceDiLista {
  std::string parola;  // in capitals
  bool difficile = false;
  std::string definizione;
};

/// A line of a list, in the code page, blanks around word and clue taken off. None for a line of
/// another shape, an empty clue, a word of more than one piece, or text that the code page lacks.
std::optional<VoceDiLista> InterpretaVoce(std::string_view rigaUtf8);

/// What became of the lines of a list.
struct EsitoLista {
  int tralasciate = 0;       // lines that are no entry
  int primaTralasciata = 0;  // number of the first one, from 1
};

/// Takes a list in UTF-8 to `voci`. Blank lines are left out without being counted.
EsitoLista AggiungiVoci(std::string_view utf8, std::vector<VoceDiLista>& voci);

/// Whether a clue gives its answer away: the word, of letters alone, stands in it as a word of its
/// own, capitals and accents aside.
bool ContieneRisposta(std::string_view definizione, std::string_view parola);

}  // namespace telarium
