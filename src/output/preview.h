#pragma once

#include <string_view>

#include "platform/surface.h"

// The sheet of the current crossword on the main window. ChiudiAnteprima of editor/commands.h
// leads back.
namespace telarium {

/// Shows the sheet as a white page between the bars and forbids what needs the grid, until the
/// preview is closed. Nothing of the crossword changes; the geometry of the grid is that of the
/// page meanwhile, and the window's bold stays as it was. Nothing happens without a crossword or a
/// window.
void AnteprimaSchema();

/// Writes a clue entry of the preview, whose lines end as far from the window's right edge as they
/// begin from its left one.
void AnteprimaDefinizione(Superficie& superficie, std::string_view voce, int margine);

}  // namespace telarium
