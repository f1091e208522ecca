#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/cells.h"

// What follows from which cells of a grid are black: the words, the kinds of the cells and their
// numbers. A word is a run of at least two white cells in a row or a column.
namespace telarium {

struct Cruciverba;

/// Kinds, numbers and words of one grid. Columns and rows count from 1; a cell outside the grid is
/// a programming error.
class Derivati {
 public:
  Derivati() = default;

  /// From the cell characters, row by row; their number is that of the cells.
  Derivati(int colonne, int righe, std::string_view caratteri);

  int Colonne() const { return colonne_; }
  int Righe() const { return righe_; }
  bool Dentro(Casella casella) const {
    return casella.colonna >= 1 && casella.colonna <= colonne_ && casella.riga >= 1 &&
           casella.riga <= righe_;
  }

  /// The words by rows, in a row by columns, at a cell the horizontal one before the vertical one.
  const std::vector<Slot>& Parole() const { return parole_; }

  /// The cell character.
  char Carattere(Casella casella) const { return Di(casella).carattere; }
  bool Nera(Casella casella) const { return Carattere(casella) == CellaNera; }

  /// 0 black, 1 white without a start, 2 horizontal start, 3 vertical start, 5 both.
  int Tipo(Casella casella) const { return Di(casella).tipo; }

  /// Clue number of a start cell, from 1 in reading order; 0 elsewhere.
  int Numero(Casella casella) const { return Di(casella).numero; }

  /// Which of Parole(), from 0, runs through the cell in that direction; NessunaParola if none
  /// does.
  int ParolaPer(Casella casella, int direzione) const;
  static constexpr int NessunaParola = -1;

  /// Whether a word starts at the cell in that direction.
  bool Inizia(Casella casella, int direzione) const;

  /// The cell characters of a word, CellaVuota where it has no letter.
  std::string Lettere(const Slot& slot) const;

 private:
  struct DatiCasella {
    char carattere = CellaVuota;
    std::int8_t tipo = 0;
    std::int16_t numero = 0;
    std::array<std::int16_t, 2> parole = {NessunaParola, NessunaParola};
  };

  DatiCasella& Di(Casella casella);
  const DatiCasella& Di(Casella casella) const;
  bool Bianca(Casella casella) const { return Dentro(casella) && !Nera(casella); }
  bool AggiungiParola(Casella inizio, int direzione);

  int colonne_ = 0;
  int righe_ = 0;
  std::vector<DatiCasella> caselle_;  // row by row
  std::vector<Slot> parole_;
};

/// What follows from the grid of a crossword. A cell that its row line does not hold is an empty
/// white one.
Derivati Deriva(const Cruciverba& cruciverba);

}  // namespace telarium
