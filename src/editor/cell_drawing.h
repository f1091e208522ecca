#pragma once

#include <string>

#include "platform/surface.h"

// How a cell of the grid looks, on every surface that shows one: the main window, a preview, a
// printed page. Lengths are in units of the surface; types are in points.
namespace telarium {

/// Distance of the square that fills a black cell from the edges of a cell of that side; never so
/// much that the square turns inside out.
double RientroCasellaNera(double lato);

/// Draws the outline of a cell of that side from its left top corner, and the square that fills a
/// black one.
void DisegnaContorno(Superficie& superficie, double x, double y, double lato);
void DisegnaCasellaNera(Superficie& superficie, double x, double y, double lato, Colore colore);

/// Type size of the letters for cells of that side, from AltezzaCaratteri: at least `minimo`, and
/// no larger than a letter that overfills its cell already, whatever the settings say.
double CorpoLettere(double lato, double minimo);

/// Type size of the clue numbers, from AltezzaNumeri, within the same bounds.
double CorpoNumeri(double lato);

/// Writes a letter in the surface's type round the middle of a cell of that side, moved down by
/// DistanzaDaCentro.
void ScriviLettera(Superficie& superficie, double centroX, double centroY, double lato,
                   char lettera);

/// Writes the clue number of a cell in the surface's type, so far from the cell's left top corner.
void ScriviNumero(Superficie& superficie, double x, double y, double distanza, int numero);

/// The typeface of the letters; an empty NomeFont becomes "Arial".
const std::string& FontDelleLettere();

}  // namespace telarium
