#pragma once

#include <optional>

#include "clues/merging.h"

// A plain text file of clues, merged into the encyclopedia. Odd lines hold a word, even ones a clue
// of it, in the code page; blanks at the ends of a line do not count. A file that somebody has
// saved in UTF-8 is taken for what it is.
namespace telarium {

inline constexpr const char* NomeFileDefinizioni = "definizIONI.txt";

/// Merges definizIONI.txt of the program folder into the easy families; pairs that are none are
/// skipped. A word that cannot be added is skipped, counted in the told report and again among what
/// was not done. Gives the report; none without a readable file or after any other error, which
/// have been told; what was merged until then stays.
std::optional<RapportoDefinizioni> ImportaDefinizioni();

/// The click on Command1: ImportaDefinizioni and its report in a message.
void Recupera_Definizioni();

}  // namespace telarium
