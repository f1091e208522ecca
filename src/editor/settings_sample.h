#pragma once

// Where the parts of the small grid lie that shows what settings would do to the real one. Lengths
// are in twips from the left top corner of the grid, percentages are of a cell's side.
namespace telarium {

inline constexpr int TwipPerPixelDelCampione = 15;
inline constexpr int ColonneDelCampione = 5;
inline constexpr int RigheDelCampione = 3;

struct PuntoInTwip {
  double x, y;
  bool operator==(const PuntoInTwip&) const = default;
};

struct RettangoloInTwip {
  double sinistra, cima, larghezza, altezza;
  bool operator==(const RettangoloInTwip&) const = default;
};

/// The cell in that column and row, both from 0, of a grid with cells of that side.
RettangoloInTwip CellaDelCampione(int colonna, int riga, double lato);

/// The square that fills a black cell, in the middle of it.
RettangoloInTwip QuadratoNelCampione(const RettangoloInTwip& cella, int percentuale);

/// Type size in points of letters or numbers that are to be so high.
double CorpoNelCampione(const RettangoloInTwip& cella, int percentuale);

/// Left top corner of a clue number at that distance from the corner of its cell.
PuntoInTwip PostoDelNumero(const RettangoloInTwip& cella, int percentuale);

/// Left top corner of a letter of that width and height, moved down from the middle of its cell.
PuntoInTwip PostoDellaLettera(const RettangoloInTwip& cella, int percentuale, double larghezza,
                              double altezza);

}  // namespace telarium
