#pragma once

#include "platform/surface.h"

// How a small grid is drawn in a preview, whatever it was read from.
namespace telarium {

/// A grid of columns and rows (at least 1 of each) as large as a surface allows with that margin in
/// all, and centred there; lengths in the surface's units. In a grid too large for the surface a
/// cell has the side 0 and nothing of it can be seen.
class AnteprimaDiSchema {
 public:
  AnteprimaDiSchema(Superficie& superficie, int colonne, int righe, double margine);

  int Lato() const { return lato_; }

  /// The middle of a cell, both counted from 1.
  double CentroX(int colonna) const { return Sinistra(colonna) + lato_ / 2.0; }
  double CentroY(int riga) const { return Cima(riga) + lato_ / 2.0; }

  /// Draws the outline of a cell, and the square that fills a black one.
  void Contorno(int colonna, int riga) const;
  void Nera(int colonna, int riga, Colore colore) const;

 private:
  double Sinistra(int colonna) const { return sinistra_ + (colonna - 1) * lato_; }
  double Cima(int riga) const { return cima_ + (riga - 1) * lato_; }

  Superficie& superficie_;
  int lato_;
  int sinistra_;
  int cima_;
};

}  // namespace telarium
