#pragma once

#include <string>
#include <utility>

#include "model/words.h"
#include "platform/text.h"

// What the web pages have in common. A page is text in the code page, as a crossword file is, and
// nothing that goes into it is escaped: a clue may carry markup, and a browser has to guess the
// encoding, which no page names. The markup itself is kept as it has always been written,
// unbalanced tags included, for whoever works on such pages with tools.
namespace telarium {

/// A page as it grows, from texts, characters and numbers in decimal.
class TestoDiPagina {
 public:
  /// Adds them to the line that is being written.
  template <class... Parti>
  void Scrivi(const Parti&... parti) {
    testo_ += Unisci(parti...);
  }

  /// Adds them and ends the line, with CR LF.
  template <class... Parti>
  void Riga(const Parti&... parti) {
    Scrivi(parti..., "\r\n");
  }

  std::string Prendi() && { return std::move(testo_); }

 private:
  std::string testo_;
};

/// What the pages tell of the crossword and of the program.
struct ValoriDiPagina {
  std::string intero;  // the crossword's name with its folders
  std::string nome;    // without
  std::string data;    // today
  std::string autore;  // header line 1
  std::string sito;    // the product's site, without a scheme in front
  std::string font;    // typeface of the main window, and whether it is italic
  bool corsivo;
};

/// The values as they are now.
ValoriDiPagina ValoriAttuali();

/// The end of the style attribute that begins with the typeface, its closing quote included.
std::string_view FineDelloStile(const ValoriDiPagina& valori);

/// The head of a page with a grid, and the line over the grid.
void ScriviTesta(TestoDiPagina& pagina, const ValoriDiPagina& valori);
void ScriviTitolo(TestoDiPagina& pagina, const ValoriDiPagina& valori);

/// Writes the grid as a table with cells of that size in pixels: `casella` gets each cell, and
/// whether it is black, and writes what stands behind its opening tag.
template <class ScriviCasella>
void ScriviGriglia(TestoDiPagina& pagina, int larghezza, int altezza, ScriviCasella casella) {
  pagina.Riga(R"(<td valign="top"><table border="2" cellspacing="1" width=")",
              NumColonne * larghezza, R"(" bgcolor="#c0c0c0" bordercolor="#ffffff">)");
  pagina.Riga("<tr>");
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      const bool nera = LetteraCasella(c, r) == CellaNera;
      pagina.Riga(R"(<td width=")", 100 / NumColonne, R"(%" height=")", altezza, R"(" bgcolor = )",
                  nera ? "000000" : "ffffff", '>');
      casella(Casella{c, r}, nera);
    }
    pagina.Riga("</tr><tr>");
  }
}

/// The line under the grid: how the page was made, and the product's site as a link.
void ScriviCollegamento(TestoDiPagina& pagina, std::string_view come, const ValoriDiPagina& valori);

}  // namespace telarium
