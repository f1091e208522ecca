#pragma once

#include <vector>

#include "composer/composer.h"

// Which letters may still stand in each cell of a partly filled grid.
namespace telarium {

/// The letters that each cell may still have, by cell: what consistency leaves, and with
/// `limiti.passi` over 0 what is left when each letter is tried by itself too, so many trials in
/// all. Stopped, those that are left by then. None in every cell: the problem is impossible.
std::vector<Lettere> LettereRimaste(const Problema& problema, const Limiti& limiti);

/// The cells that LettereRimaste has left one letter and that had more, rising.
std::vector<int> CaselleObbligate(const Problema& problema, const std::vector<Lettere>& rimaste);

}  // namespace telarium
