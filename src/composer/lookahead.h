#pragma once

#include <functional>
#include <string>
#include <vector>

#include "composer/composer.h"

// What may still stand in a partly filled grid: for one slot what would become of each word, and
// for each cell the letters that are left.
namespace telarium {

enum class Sorte {
  Morta,    // no fill of the grid has it there
  Aperta,   // nothing speaks against it
  Provata,  // a whole fill with it was found
};

struct Candidato {
  NumeroParola parola;
  Sorte sorte = Sorte::Aperta;
  /// Of a dead one: the slot that has no word left with it, if its letters alone tell; else -1.
  int incrocio = -1;
  std::string maschera;  // of that slot, "." free
};

/// Judges the words that fit a slot, best first (those with a clue before the others when
/// `primaDefinite`), and hands each to `ricevi` as soon as it is known; that ends it by giving
/// false. With `passi` of the limits at 0 none is proven: dead or open. At the most `quanti` are
/// judged. False when `limiti.ferma` broke it off. Any thread.
bool VagliaCandidati(const Problema& problema, int slot, int quanti, const Limiti& limiti,
                     const std::function<bool(const Candidato&)>& ricevi);

/// The letters that each cell may still have, by cell: what consistency leaves, and with `passi`
/// over 0 also what trying each letter leaves. None in some cell: the problem is impossible.
std::vector<Lettere> LettereRimaste(const Problema& problema, const Limiti& limiti);

}  // namespace telarium
