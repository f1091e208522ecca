#pragma once

#include <compare>
#include <vector>

#include "model/derivation.h"

// What another black cell would do to a grid.
namespace telarium {

/// The worst first, so that the smaller of two effects is the better black.
struct EffettoDiNera {
  int aree = 0;   // white areas more than before
  int sole = 0;   // runs of one cell that it leaves, in either direction
  int corte = 0;  // likewise of two cells
  int voci = 0;   // entries more than before, which may be negative

  auto operator<=>(const EffettoDiNera&) const = default;
};

/// Of a white cell of the grid.
EffettoDiNera EffettoDi(const Derivati& griglia, Casella nera);

}  // namespace telarium
