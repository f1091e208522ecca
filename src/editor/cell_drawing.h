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

/// The same in whole points, as pages and previews want it: of a size between two integers the even
/// one, and at least 5. The letters are those of cells smaller by `riduzione`.
double CorpoLettereIntero(double lato, double riduzione = 1);

/// Type size of the clue numbers, from AltezzaNumeri, within the same bounds.
double CorpoNumeri(double lato);

/// Where letters and numbers stand in their cells: on a screen, unless a surface says otherwise.
struct PostoInCasella {
  bool misureIntere = true;    // half the extent of a letter is rounded
  double letteraADestra = 0;   // units from the middle
  double riduzioneCentro = 1;  // what the shift of a letter by DistanzaDaCentro is divided by
  double numeroADestra = 2;    // units from the cell's outline
};

/// Writes a letter in the surface's type round the middle of a cell of that side, moved down by
/// DistanzaDaCentro.
void ScriviLettera(Superficie& superficie, double centroX, double centroY, double lato,
                   char lettera, const PostoInCasella& posto = {});

/// Writes the clue number of a cell in the surface's type, so far from the cell's left top corner.
void ScriviNumero(Superficie& superficie, double x, double y, double distanza, int numero,
                  const PostoInCasella& posto = {});

/// The typeface of the letters; an empty NomeFont becomes "Arial".
const std::string& FontDelleLettere();

}  // namespace telarium
