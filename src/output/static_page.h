#pragma once

#include <cstdint>
#include <string>

// The page to read: clues and grid as tables. Up to 19 columns the three parts stand side by side;
// from 20 on each is a table of its own, and the lists of clues run in columns.
namespace telarium {

inline constexpr const char* NomePaginaStatica = "telarium_html.html";

// What the page is for. It decides what stands in a black cell when solutions are hidden.
inline constexpr std::int16_t PaginaPerIlBrowser = 1;
inline constexpr std::int16_t PaginaPerWord = 2;

/// The page of the crossword as the last redraw left it. Wants a grid.
std::string PaginaStatica(std::int16_t modo);

/// Writes it as telarium_html.html of the program folder. A failure has been told. Without a grid
/// nothing happens, and the answer is false.
[[nodiscard]] bool creadocHTML(std::int16_t modo);

/// menusphtml: writes the page and opens it in the user's browser.
void MostraPaginaStatica();

}  // namespace telarium
