#pragma once

#include "editor/cell_drawing.h"
#include "editor/geometry.h"
#include "model/words.h"
#include "platform/surface.h"

// The grid as it stands on the main window, between the toolbar and the status bar: as large as the
// window allows, centred, all in pixels. What is drawn stays on the surface until it is cleared.
namespace telarium {

inline constexpr Colore ColoreCornice = 0x000080;  // dark red

/// Sets where the grid lies from the window's size and paints the crossword. Ends the look of a
/// print preview. When a black cell has a colour the snapshot is written once. With NumColonne 0,
/// or without a window, nothing happens.
void RidisegnaSchema();

/// The same for what no other window has to know of: the snapshot stays as it is.
void RidisegnaSenzaIstantanea();

/// Where the grid lies on a surface if its cells are to fit between a band of that height at the
/// top and one at the bottom, centred there. Wants a grid.
Geometria CalcolaGeometria(const Superficie& superficie, double cima, double fondo);

/// The part of the window's surface that the grid takes as last drawn, its frame included.
Zona ZonaDelloSchema();

/// Draws the cells of the grid where the geometry has them: outlines, black squares and, if
/// `conLettere`, the letters in the surface's type.
void DisegnaCaselle(Superficie& superficie, const Geometria& geometria, bool conLettere,
                    const PostoInCasella& posto = {});

/// Writes the clue numbers likewise, in the surface's type.
void DisegnaNumeri(Superficie& superficie, const Geometria& geometria,
                   const PostoInCasella& posto = {});

/// Whether a black cell has a colour, so that a redraw writes the snapshot.
bool SchemaColorato();

/// Paints a cell that is about to turn black or white, and puts it on the screen at once: the
/// redraw comes only when the change is committed.
void AnticipaCasella(Casella casella, bool nera);

}  // namespace telarium
