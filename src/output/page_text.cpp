#include "output/page_text.h"

#include "auxiliary/addresses.h"
#include "editor/cell_drawing.h"
#include "model/state.h"
#include "platform/platform.h"

namespace telarium {

ValoriDiPagina ValoriAttuali() {
  const std::string intero = TestoPercorso(NomeCruciverba);
  const Superficie* finestra = FinestraPrincipale();
  return {.intero = intero,
          .nome = intero.substr(intero.find_last_of("/\\") + 1),
          .data = DataDiOggi(),
          .autore = Schema(1),
          .sito = ValoreIndirizzo(Indirizzo::SitoProdotto),
          .font = FontDelleLettere(),
          .corsivo = finestra && finestra->Corsivo()};
}

std::string_view FineDelloStile(const ValoriDiPagina& valori) {
  return valori.corsivo ? R"(; font-style: italic")" : R"(")";
}

void ScriviTesta(TestoDiPagina& pagina, const ValoriDiPagina& valori) {
  pagina.Riga("<html><head><title>Telarium - ", valori.nome, " </title></head>");
}

void ScriviTitolo(TestoDiPagina& pagina, const ValoriDiPagina& valori) {
  pagina.Riga(R"(<p align="center"><b>)", valori.data, "  -  ", valori.nome, "  -  ", valori.autore,
              "<br>");
}

void ScriviCollegamento(TestoDiPagina& pagina, std::string_view come,
                        const ValoriDiPagina& valori) {
  pagina.Riga(R"(<p align="center"><b>)", come, R"( con Telarium - <a href="http://)", valori.sito,
              R"(">)", valori.sito, "</a>");
}

}  // namespace telarium
