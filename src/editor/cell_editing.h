#pragma once

#include "model/state.h"

// What a mouse button does on the grid: cells turn black or white, a cell gets a colour, a word
// goes to the clue editor.
namespace telarium {

/// The word handed to the clue editor: its start cell, and its direction.
extern std::int16_t CursoreX;
extern std::int16_t CursoreY;
extern std::int16_t Direzione;
/// What the last colour chooser gave; negative when none was chosen.
extern Colore ColoreScelto;

enum class TastoMouse { Sinistro, Destro, Altro };

/// MenuCN and MenuCB, CasNera and CasBianca: from now on the left button turns cells black, or
/// white, and the right one does the opposite, until a click beside the grid.
void AttivaCasellaNera();
void AttivaCasellaBianca();

/// A mouse button was pressed on the surface, at a point in pixels.
void PremiSullaSuperficie(TastoMouse tasto, double x, double y);

}  // namespace telarium
