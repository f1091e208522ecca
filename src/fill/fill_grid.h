#pragma once

#include <string>
#include <vector>

#include "model/cruciverba.h"
#include "model/derivation.h"

namespace telarium {

/// An empty white cell while a fill runs; in a pattern a place for any letter.
inline constexpr char CellaSvuotata = ' ';

/// The letters of a grid while a fill runs. Placing words moves no black cell: what follows from
/// the black cells is that of the beginning. A cell outside the grid is a programming error.
class GrigliaInEstrazione {
 public:
  /// With the letters that the crossword has.
  explicit GrigliaInEstrazione(const Cruciverba& cruciverba);

  int Colonne() const { return derivati_.Colonne(); }
  int Righe() const { return derivati_.Righe(); }
  bool Nera(Casella casella) const { return derivati_.Nera(casella); }
  /// Clue number of a start cell, from 1.
  int NumeroCasella(Casella casella) const { return derivati_.Numero(casella); }
  /// The words in reading order, at a cell the horizontal one first.
  const std::vector<Slot>& Parole() const { return derivati_.Parole(); }

  /// CellaNera, CellaSvuotata or a letter.
  char LetteraCasella(Casella casella) const { return lettere_[Posto(casella)]; }
  /// The letters of a word's cells.
  std::string LettereDi(const Slot& slot) const;
  /// Those of the word that runs through a cell in that direction; empty when there is none.
  std::string LettereAttraverso(Casella casella, int direzione) const;

  /// Empties every white cell.
  void Svuota();
  /// Gives a white cell its letter; a letter that it has may not become another.
  void ScriviLettera(Casella casella, char lettera);

 private:
  std::size_t Posto(Casella casella) const;

  Derivati derivati_;
  std::string lettere_;  // row by row
};

}  // namespace telarium
