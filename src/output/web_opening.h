#pragma once

#include <optional>
#include <string>
#include <string_view>

// Opening a crossword again from the page that it was published in. A comment of such a page, its
// save block, holds the lines of the crossword file behind a marker line; nothing else of the page
// is looked at.
namespace telarium {

/// The address that menurl proposes: an example page until something else is set, for the whole
/// run. What the user types does not change it.
extern std::string IndirizzoWeb;

/// What follows the last marker line of a page: the lines of a crossword file with a tail that is
/// none. None when the page has no such line, or nothing behind it.
std::optional<std::string_view> BloccoDiSalvataggio(std::string_view pagina);

/// Fetches the page behind an address in UTF-8 and gives the bytes of its save block. An address
/// without a scheme is the name of a file. None when there is no such page or no block in it, which
/// has been told with its cause, and when the user broke the fetch off, which has not.
std::optional<std::string> PrelevaBlocco(const std::string& indirizzo);

/// menurl: asks for an address and makes the crossword of that page the current one, under the name
/// that there is. The crossword that was there stays when the page holds none, or one that breaks
/// off where its reader notices, which is told, and when it was to be saved before and is not. One
/// that breaks off in the last row of the grid, in the text of a clue or in the colours is taken as
/// far as it goes, and nothing is said.
void ApriDaIndirizzo();

}  // namespace telarium
