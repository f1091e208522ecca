#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

// Model files (.dfc): grids to start a crossword from. Plain text, a sequence of models without
// header or count. A line of more than one character is a grid row, one character per cell ("."
// white, "*" black, "A" to "Z" a white cell with that letter); the first row gives the width. A
// line of exactly one character ends a model. Blank lines mean nothing, and rows behind the last
// end are no model.
namespace telarium {

/// The rows of a model, top row first. As read: their lengths and characters are not checked.
using Modello = std::vector<std::string>;

/// Reads all models of a file. False when there are none to have, which has been told.
[[nodiscard]] bool CaricaModelli(const Percorso& nome, std::vector<Modello>& modelli);

/// The models in the contents of a file.
std::vector<Modello> InterpretaModelli(std::string_view contenuto);

/// Whether all rows have the length of the first and all characters are those of a model.
bool ModelloValido(const Modello& modello);

/// Ends the program, with a message, unless a model is valid: such a file is none of ours.
void EsigiModelloValido(const Modello& modello);

}  // namespace telarium
