#pragma once

#include <optional>

#include "composer/composer.h"

// A grid is judged by its worst word. The floor is the best that there is: the highest least score
// at which the grid still fills, and the proof that it does not at the next one.
namespace telarium {

struct Soglia {
  /// Of the grid without a least score beyond the demanded ones: when it is not Riempito there is
  /// no floor.
  Riempimento riempimento;  // at the floor, when there is one
  int fino = 0;             // all words of that fill have at least this score
  std::optional<int>
      oltre;             // the next score of a word: with it as the least the grid is impossible.
                         // None where the proof was broken off, or no word has a higher score
  bool provata = false;  // the floor is proved
};

/// Finds the floor of a problem: each slot's own least score holds besides.
Soglia TrovaSoglia(const Problema& problema, const Limiti& limiti);
/// The same from a fill that Componi has found, whose steps do not count.
Soglia TrovaSoglia(const Problema& problema, Riempimento primo, const Limiti& limiti);

/// The same problem with a least score for all slots but the open ones, where no word is placed.
Problema ConMinimo(Problema problema, int minimo);

}  // namespace telarium
