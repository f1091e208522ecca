#pragma once

#include "model/derivation.h"
#include "platform/surface.h"

// The small picture of the grid beside the table of its words.
namespace telarium {

/// Ends the program, with its message, when a cell is neither black nor empty nor a capital from A
/// to Z: nothing of it can be drawn here.
void EsigiSchemaSemplice(const Derivati& derivati);

/// Draws a grid, centred and as large as the surface allows, with its letters and numbers in the
/// type of the main window, and a yellow rectangle round one word if one is given.
void DisegnaSchemaPiccolo(Superficie& superficie, const Derivati& derivati, const Slot* evidente);

}  // namespace telarium
