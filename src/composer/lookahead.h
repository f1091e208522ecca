#pragma once

#include <functional>
#include <string>
#include <vector>

#include "composer/composer.h"

// What would become of each word in one slot of a partly filled grid.
namespace telarium {

enum class Sorte {
  Morta,    // no fill of the grid has it there
  Aperta,   // nothing speaks against it
  Provata,  // a whole fill with it was found
};

struct Candidato {
  NumeroParola parola;
  Sorte sorte = Sorte::Aperta;
  /// Of a dead one: a slot that has no word left by the given letters and those of the candidate
  /// alone; -1 where no single slot tells.
  int incrocio = -1;
  std::string maschera = {};  // these letters of that slot, "." free
};

/// Judges the words of a slot that fit the letters of its cells, in the order of the vocabulary and
/// `quanti` at the most, and hands each to `ricevi` as soon as it is known; that ends it by giving
/// false. Words that stand whole in another slot are left out; those that the rest of the grid
/// excludes are dead. `limiti.passi` are for each word; with 0 none is proven: dead or open. Any
/// thread, one worker; the same problem, seed and steps give the same verdicts. False when
/// `limiti.ferma` broke it off.
bool VagliaCandidati(const Problema& problema, int slot, int quanti, const Limiti& limiti,
                     const std::function<bool(const Candidato&)>& ricevi);

}  // namespace telarium
