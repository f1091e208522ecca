#pragma once

#include <vector>

#include "composer/draft.h"

namespace telarium {

/// Where the cells of a problem lie. It has no columns and rows, but its slots tell: one lies in a
/// row, those that cross it stand in columns, and so on; each connected part has its own. Where
/// slots are no runs of a grid, places are still some places.
class Pianta {
 public:
  struct Luogo {
    int x = 0;
    int y = 0;
  };
  /// The lattice must outlive it.
  explicit Pianta(const Reticolo& reticolo);

  /// Gathers the cells of a rectangle round a slot that hang together with it: it spans the slot,
  /// is `lato` long at least, and has as many cells as a square of that side, from some rows or
  /// columns; `scarto` (from 0) tells which of them. Only cells that the draft may change; rising.
  void Intorno(const Stesura& stesura, int slot, int lato, Luogo scarto, std::vector<int>& caselle);

 private:
  struct Rettangolo {
    Luogo inizio;
    Luogo lati;
    bool Ha(Luogo luogo) const {
      return luogo.x >= inizio.x && luogo.x < inizio.x + lati.x && luogo.y >= inizio.y &&
             luogo.y < inizio.y + lati.y;
    }
  };

  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  void Stendi(int prima);
  void Colloca(int slot, bool primo);
  Rettangolo RettangoloDi(int slot, int lato, Luogo scarto) const;
  template <class Visita>
  void Vicine(int casella, Visita visita) const;

  const Reticolo& reticolo_;
  enum class Verso : char { Ignoto, Riga, Colonna };
  std::vector<Luogo> luoghi_;  // of each cell
  std::vector<Verso> versi_;   // of each slot
  std::vector<char> viste_;    // cells, within one call
  std::vector<int> coda_;
};

}  // namespace telarium
