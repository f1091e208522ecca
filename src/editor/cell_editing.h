#pragma once

#include "model/state.h"

// What a mouse button does on the grid: cells turn black or white, a cell gets a colour, a word
// goes to the clue editor.
namespace telarium {

/// What the last colour chooser gave; negative when none was chosen.
extern Colore ColoreScelto;

enum class TastoMouse { Sinistro, Destro, Altro };

/// MenuCN and MenuCB, CasNera and CasBianca: choose the tool, by the shape of the pointer. Its left
/// button turns cells black, or white; a cell that the right button turns the other way changes the
/// tool too. It lasts until a click beside the grid or another command that sets the pointer.
void AttivaCasellaNera();
void AttivaCasellaBianca();

/// A mouse button was pressed on the surface, at a point in pixels. By PuntatoreMouse and
/// ModoGriglia it enters editing, turns a cell and commits it, colours a cell, or hands the word
/// that the pointer last meant to the clue editor and commits what comes back. A clue written for a
/// cell where no word starts is offered to the word that runs through it.
void PremiSullaSuperficie(TastoMouse tasto, double x, double y);

}  // namespace telarium
