#pragma once

#include "editor/cell_drawing.h"
#include "model/state.h"

// How a small grid is drawn in a preview, whatever it was read from.
namespace telarium {

/// A grid of columns and rows (at least 1 of each) as large as a surface allows with that margin in
/// all, and centred there; lengths in the surface's units. The side of a cell is rounded, or its
/// fraction cut off. In a grid too large for the surface a cell has the side 0 and nothing of it
/// can be seen.
class AnteprimaDiSchema {
 public:
  enum class Misura { Arrotondata, Troncata };

  AnteprimaDiSchema(Superficie& superficie, int colonne, int righe, double margine,
                    Misura misura = Misura::Arrotondata);

  int Lato() const { return lato_; }

  /// Left and top edge of a column or row of cells, counted from 1.
  double BordoSinistro(int colonna) const { return sinistra_ + (colonna - 1) * lato_; }
  double BordoAlto(int riga) const { return cima_ + (riga - 1) * lato_; }

  /// Draws a cell, both counted from 1: its outline, the square of a black one in that colour, and
  /// the letter of any other that is not empty by `scrivi`, which gets the middle of the cell.
  template <class Scrivi>
  void Casella(int colonna, int riga, char carattere, Colore nera, Scrivi scrivi) const {
    if (lato_ == 0) return;
    const double x = BordoSinistro(colonna);
    const double y = BordoAlto(riga);
    DisegnaContorno(superficie_, x, y, lato_);
    if (carattere == CellaNera) {
      DisegnaCasellaNera(superficie_, x, y, lato_, nera);
    } else if (carattere != CellaVuota) {
      scrivi(x + lato_ / 2.0, y + lato_ / 2.0);
    }
  }

 private:
  Superficie& superficie_;
  int lato_;
  int sinistra_;
  int cima_;
};

}  // namespace telarium
