#pragma once

#include "editor/cell_drawing.h"
#include "model/words.h"
#include "platform/surface.h"

// The grid as it stands on the main window, between the toolbar and the status bar: as large as the
// window allows, centred, all in pixels. What is drawn stays on the surface until it is cleared.
namespace telarium {

inline constexpr Colore ColoreCornice = 0x000080;  // dark red

/// Brings the derived tables into line with Schema, sets LatoCasella, OrigineX and OrigineY from
/// the window's size and paints the crossword. Ends the look of a print preview. When a black cell
/// has a colour the snapshot is written once. With NumColonne 0 nothing happens; without a window
/// only the tables are set.
void RidisegnaSchema();

/// The same for what no other window has to know of: the snapshot stays as it is.
void RidisegnaSenzaIstantanea();

/// Sets LatoCasella, OrigineX and OrigineY so that the cells fit between a band of that height at
/// the surface's top and one at its bottom, centred there. Wants a grid.
void CalcolaGeometria(const Superficie& superficie, double cima, double fondo);

/// The part of the window's surface that the grid takes as last drawn, its frame included.
Zona ZonaDelloSchema();

/// Tells that LatoCasella, OrigineX and OrigineY are those of another surface or of a sheet, and
/// not of the grid on the window, until the next redraw.
void CediGeometria();

/// Makes them those of the grid on the window again if they were given away, without drawing: for
/// what finds its way by them. Nothing happens without a grid or a window.
void RiprendiGeometria();

/// Draws the cells of the grid where LatoCasella, OrigineX and OrigineY have them: outlines, black
/// squares and, if `conLettere`, the letters in the surface's type.
void DisegnaCaselle(Superficie& superficie, bool conLettere, const PostoInCasella& posto = {});

/// Writes the clue numbers likewise, in the surface's type.
void DisegnaNumeri(Superficie& superficie, const PostoInCasella& posto = {});

/// Whether a black cell has a colour, so that a redraw writes the snapshot.
bool SchemaColorato();

/// Left and top edge of a column or row of cells on the surface, as last drawn.
double BordoSinistro(int colonna);
double BordoAlto(int riga);

/// Paints a cell that is about to turn black or white, and puts it on the screen at once: the
/// redraw comes only when the change is committed.
void AnticipaCasella(Casella casella, bool nera);

}  // namespace telarium
