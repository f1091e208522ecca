#pragma once

#include <optional>
#include <string>
#include <string_view>

// The page to solve in a browser: a text box for each white cell, a clock, and a button that checks
// the answers. It needs nothing else. A comment of it, the save block, holds the lines of the
// crossword file, by which the program opens the crossword again from the page:
//
//   line     content
//   first    a marker; a reader looks for its last 18 characters, InizioDelBlocco
//   ...      the crossword file, byte for byte; after a "-->" in a clue a browser shows the rest
//            of it, no reader minds; a clue that ends as the marker does would be taken for it
//   last     a marker that no reader looks for
namespace telarium {

inline constexpr const char* NomePaginaInterattiva = "telarium_form.html";

/// The end of the line before the save block's contents.
inline constexpr std::string_view InizioDelBlocco = "sottostanti ####\r\n";

/// The page of the crossword as the last redraw left it. Wants a grid. None when the crossword has
/// a character that its file cannot hold, or would be too large a file.
std::optional<std::string> PaginaInterattiva();

/// menujava: writes the page as telarium_form.html of the program folder and opens it in the user's
/// browser. A failure is told. Without a grid nothing happens.
void PubblicaCruciverba();

}  // namespace telarium
