#pragma once

#include <array>
#include <cstddef>

#include "model/table.h"

// What a grid is made of: limits, cell characters, directions, words. Columns and rows count from
// 1.
namespace telarium {

inline constexpr int MaxColonne = 53;
inline constexpr int MaxRighe = 30;
inline constexpr int RigheIntestazione = 4;  // lines before the grid: author, date, kind, size
/// Characters of a header line before its value, as "Autore     : ".
inline constexpr std::size_t LunghezzaEtichetta = 13;

// Directions of a word.
inline constexpr int Orizzontale = 1;
inline constexpr int Verticale = 2;

inline constexpr std::array<int, 2> Direzioni = {Orizzontale, Verticale};

/// The other direction.
constexpr int Traversa(int direzione) {
  return direzione == Orizzontale ? Verticale : Orizzontale;
}

// Cell characters. Any other is the letter of a white cell.
inline constexpr char CellaNera = '*';
inline constexpr char CellaVuota = '.';

/// Whether a cell character is one of those that model files and previews know: black, empty, or a
/// capital from A to Z.
constexpr bool CarattereSemplice(char carattere) {
  return carattere == CellaNera || carattere == CellaVuota ||
         (carattere >= 'A' && carattere <= 'Z');
}

using AsseColonne = Indici<1, MaxColonne>;
using AsseRighe = Indici<1, MaxRighe>;
using AsseDirezioni = Indici<Orizzontale, Verticale>;

struct Casella {
  int colonna = 0;
  int riga = 0;

  bool operator==(const Casella&) const = default;
};

/// A word of the grid, named by its start cell and its direction.
struct Slot {
  Casella inizio;
  int direzione = Orizzontale;
  int lunghezza = 0;  // in cells

  /// The k-th cell of the word, k from 1.
  Casella Cella(int k) const {
    return direzione == Orizzontale ? Casella{inizio.colonna + k - 1, inizio.riga}
                                    : Casella{inizio.colonna, inizio.riga + k - 1};
  }

  bool operator==(const Slot&) const = default;
};

}  // namespace telarium
