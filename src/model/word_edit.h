#pragma once

#include <string>

#include "model/cells.h"

// What goes into the clue editor and comes out of it.
namespace telarium {

/// A word and its clue.
struct ParolaDefinita {
  std::string parola;
  std::string definizione;

  bool operator==(const ParolaDefinita&) const = default;
};

/// A word of the grid, or its rest from a cell on, as it is handed to the editor.
struct ParolaInEsame {
  ParolaDefinita testo;
  int numero = 0;  // clue number of its first cell, 0 if it has none
  int direzione = Orizzontale;
  /// The lower right corner of its first cell on the main window's surface, in pixels.
  double destra = 0;
  double fondo = 0;
};

}  // namespace telarium
