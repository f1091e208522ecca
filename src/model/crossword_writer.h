#pragma once

#include <optional>
#include <string>

#include "model/crossword_format.h"
#include "model/cruciverba.h"

namespace telarium {

/// The bytes of the file of a crossword, with the clues of the words that its grid has. None when
/// LeggiContenuto could not give it back: a cell has a character that the file cannot hold, the
/// laboratory a text that it cannot, or the file would be too large.
std::optional<std::string> ContenutoDelFile(const Cruciverba& cruciverba);

/// Gives a crossword the form in which it comes back from its file, so that what is equal there is
/// equal as a value: as many row lines as rows, their marks in step, each header line and each clue
/// of a word of the grid without line breaks. What no file can hold stays as it is.
void ComeNelFile(Cruciverba& cruciverba);

}  // namespace telarium
