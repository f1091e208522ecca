#pragma once

#include <vector>

#include "composer/composer.h"

// Why a problem is impossible: a small set of slots for which there are no words, whatever stands
// in the others.
namespace telarium {

struct Colpevoli {
  std::vector<int> slot;  // rising; what is shown impossible is their part of the problem alone
  bool minimo = false;    // leaving out any of them makes it possible
  std::int64_t passi = 0;
};

/// The guilty slots of a problem that Componi has proved impossible; `prova` is its answer. What is
/// left when `limiti` breaks off has been proved impossible all the same. First the smallest region
/// round the heaviest slot that is impossible by itself, then slot by slot is left out.
Colpevoli TrovaColpevoli(const Problema& problema, const Riempimento& prova, const Limiti& limiti);

/// The part of a problem that is about these slots only. Demands that are about the whole grid
/// (wanted words) hold for it when `tutto`.
Problema ParteDi(const Problema& problema, const std::vector<int>& slot);

}  // namespace telarium
