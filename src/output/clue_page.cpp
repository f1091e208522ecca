#include "output/clue_page.h"

#include "output/clue_entries.h"

namespace telarium {
namespace {

void ScriviVoci(TestoDiPagina& pagina, int direzione, std::size_t trattini) {
  PerOgniDefinizione(direzione, trattini, [&](int numero, const std::string& definizione) {
    // The blank before the number stands where a minus sign would.
    pagina.Riga("<b> ", numero, " </b>", definizione, "  ");
  });
}

}  // namespace

void ScriviCorpoDiDefinizioni(TestoDiPagina& pagina, std::size_t trattini) {
  const ValoriDiPagina valori = ValoriAttuali();
  pagina.Scrivi(R"(<font face=")", valori.font, R"("><b>)", valori.corsivo ? "<i>" : "");
  pagina.Riga("ORIZZONTALI:</b><br>");
  ScriviVoci(pagina, Orizzontale, trattini);
  pagina.Riga("<br><br><b>VERTICALI:</b><br>");
  ScriviVoci(pagina, Verticale, trattini);
  pagina.Scrivi(R"(<br><br><br><font size="1">)");
  pagina.Riga(valori.data, "   -   ", valori.intero, "<br>");
  pagina.Riga(valori.autore, "<br>");
  pagina.Scrivi("Creazione e stampa con Telarium - ", valori.sito, "<br></font>",
                valori.corsivo ? "</i>" : "");
  pagina.Riga("<br></body></html>");
}

}  // namespace telarium
