#pragma once

#include <string>
#include <string_view>

// A page made from a template of the user's, whose script gets the size and the words of the
// crossword in place of the lines that begin with "' -----".
namespace telarium {

/// The page from the text of a template. Wants a grid.
std::string PaginaDaModello(std::string_view modello);

/// menuvbhtml: makes prova.html from template.txt, both of the program folder. A failure is told.
/// Without a grid nothing happens.
void EsportaDaModello();

}  // namespace telarium
