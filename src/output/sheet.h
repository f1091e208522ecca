#pragma once

#include <string_view>

#include "editor/cell_drawing.h"
#include "editor/geometry.h"
#include "platform/surface.h"

// The sheet of a crossword, on paper and as its preview on the main window: the grid in the upper
// half, below it the clues as running text and the closing lines.
namespace telarium {

/// What paper and preview differ in. Lengths are in units of the surface, types in points.
struct Foglio {
  // The side of a cell: what the page is wide and high, and the least that comes of it.
  double larghezza;
  double altezza;
  int latoMinimo;  // 0: in too little room there is no grid
  // The grid stands in the middle of the upper half of this height.
  double altezzaPerCentrare;
  double riduzioneCorpi;  // letters and numbers are those of cells smaller by that
  int distanzaCornice;
  PostoInCasella posto;
  // The clues: type, left margin, blanks behind each, and what writes an entry.
  double corpoDefinizioni;
  int margine;
  std::size_t spaziInFondo;
  void (*definizione)(Superficie& superficie, std::string_view voce, int margine);
  int aCapoPrimaDellaData;
};

/// Draws the sheet of the document and gives where its grid lies there; bold is off behind it. From
/// the clues on a line that would pass the lower edge goes to the top of another page, where
/// the surface has one. Wants a grid.
Geometria DisegnaFoglio(Superficie& superficie, const Foglio& foglio);

/// Writes a clue entry, what stands before its first blank in bold. An entry that would come closer
/// to the right edge than `limite` begins a new line at `margine`; it is never broken.
void ScriviDefinizione(Superficie& superficie, std::string_view voce, int margine, double limite);

}  // namespace telarium
