#pragma once

#include "model/words.h"

// What the mouse points at on the grid: the word under it, shown in the tip Label1 and by the
// rectangle Shape1. The shape of the pointer, PuntatoreMouse, is the state that a press reads.
namespace telarium {

/// The cell that the last movement settled on: the one under the pointer, or the one a step back
/// from it where a word may start. It can lie outside of the grid.
extern int MouseCol;
extern int MouseRiga;

/// The cell under a point of the surface, in pixels; it lies outside of the grid when the point
/// does, 0 being left of it or above it. Wants a LatoCasella that is not 0.
Casella CasellaSotto(double x, double y);

/// What the pointer over a cell of the grid leads to.
struct Indicazione {
  enum Specie {
    Invariata,  // pointer, tip and rectangle stay as the last movement left them
    Neutra,     // no word is meant
    Parola,     // the word of `casella` in `direzione`
  } specie;
  Casella casella;  // what MouseCol and MouseRiga become
  int direzione = Orizzontale;
};

/// Decides it by TipoCasella. `altoDestra`: the pointer is in the upper right half of the cell, its
/// diagonal included. From a cell where no word starts the pointer may mean the word that starts
/// one cell back, to the left in that half, above in the other one.
Indicazione IndicazioneDa(Casella casella, bool altoDestra);

/// The pointer has moved over the surface, to a point in pixels: sets MouseCol and MouseRiga, the
/// pointer's shape, the tip and the rectangle.
void PassaSullaSuperficie(double x, double y);

/// The pointer has moved over Toolbar1: no word is meant any more.
void PassaSuToolbar1();

}  // namespace telarium
