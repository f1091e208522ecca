#pragma once

#include "model/cruciverba.h"
#include "platform/surface.h"

namespace telarium {

/// Draws a crossword with its letters and colours, centred and as large as the surface allows, in
/// place of what was there. One without a grid leaves the surface empty.
void DisegnaInPiccolo(Superficie& superficie, const Cruciverba& cruciverba);

}  // namespace telarium
