#pragma once

#include <string_view>

#include "platform/surface.h"

// The current crossword on paper.
namespace telarium {

/// Shows the printer dialog and prints the sheet of the current crossword, in units that follow the
/// main window's size. Nothing happens without a crossword, a window or a printer, or when the user
/// gives up. The geometry of the grid stays that of the paper until the next redraw, and the
/// printer's bold is off. The window is not redrawn.
void StampaSchema();

/// MenuStampa: closes a print preview and takes the tip away first.
void StampaDaMenu();

/// Writes a clue entry of the printed sheet, whose lines end at a fixed distance from its right
/// edge.
void StampaDefinizione(Superficie& superficie, std::string_view voce, int margine);

}  // namespace telarium
