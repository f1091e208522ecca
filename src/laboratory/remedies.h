#pragma once

#include <string>
#include <vector>

#include "laboratory/composition.h"

// What would make an impossible composition possible. Each remedy has been tried: with it there is
// a fill.
namespace telarium {

/// From the smallest change to the largest: one letter, one cell, then what is demanded of all
/// words.
enum class GenereRimedio {
  Libera,   // the letter of `casella` is taken out
  Nera,     // `casella` becomes black
  Livello,  // no least score is above `livello`; it is the highest that will do
  Regole,   // the rules of the set `nome`, the strictest that will do
  Lessico   // the words of the language `nome` beside those of the choice
};

struct Rimedio {
  GenereRimedio genere = GenereRimedio::Nera;
  Casella casella = {};
  int livello = 0;
  std::string nome = {};
  bool operator==(const Rimedio&) const = default;
};

inline constexpr std::size_t MaxRimedi = 10;

/// Remedies for a composition that has been proved impossible, in the order of GenereRimedio, at
/// the most MaxRimedi and of each kind that there is at least one. Letters and blacks are those in
/// the entries `colpevoli`: letters in reading order; of blacks first those that divide nothing and
/// leave no runs of one or two cells, of these the ones that leave most entries as they are. The
/// composition is that of `scelta`, the lexicon and the coverage, which may be null; languages are
/// looked for in `luoghi`, and passed over when they cannot be had. A trial that takes too many
/// steps, or more than are left of `limiti`, offers nothing. A stop ends it with what was found.
std::vector<Rimedio> TrovaRimedi(const Composizione& composizione, const SceltaComposizione& scelta,
                                 const std::vector<Slot>& colpevoli, const Lessico& lessico,
                                 const Copertura* copertura, const LuoghiLessico& luoghi,
                                 const Limiti& limiti);

}  // namespace telarium
