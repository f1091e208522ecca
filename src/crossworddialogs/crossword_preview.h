#pragma once

#include <string>

#include "platform/files.h"
#include "platform/surface.h"

namespace telarium {

/// What stands beside the picture of a crossword file; empty when there is no picture.
struct DatiAnteprima {
  std::string autoreDataTipo;  // joined by " - "
  std::string dimensioni;      // "15x13"
};

/// Draws the grid of a crossword file on a surface, its black cells in the colours that the open
/// crossword has at these places. A file that cannot be shown is told and leaves the surface empty;
/// nothing of the open crossword changes.
DatiAnteprima MostraAnteprima(const Percorso& file, Superficie& superficie);

}  // namespace telarium
