#pragma once

#include <string>
#include <vector>

#include "composer/composer.h"
#include "composer/part.h"

// Why a problem is impossible: a small set of slots for which there are no words, whatever stands
// in the others.
namespace telarium {

struct Colpevoli {
  /// Rising. Their part of the problem alone, with the wanted words below, is impossible.
  std::vector<int> slot;
  /// The wanted words without which it would be possible; then all slots that have room for one of
  /// them are among the guilty. Mostly none.
  std::vector<std::string> volute;
  /// Leaving out any of them makes the part possible, as a fill of each showed; but for the slots
  /// that are there for their room alone.
  bool minimo = false;
  std::int64_t passi = 0;
};

/// The guilty slots of a problem that Componi has proved impossible; `prova` is its answer. What is
/// left when `limiti` breaks off, or 250,000 steps, is impossible all the same. Problem, proof,
/// seed and limit of steps decide, never the clock.
Colpevoli TrovaColpevoli(const Problema& problema, const Riempimento& prova, const Limiti& limiti);

}  // namespace telarium
