#include "output/static_page.h"

#include "editor/settings.h"
#include "output/clue_entries.h"
#include "output/output_file.h"
#include "output/page_text.h"

namespace telarium {
namespace {

constexpr int MaxColonneAffiancate = 19;
constexpr std::size_t Trattini = 16;
constexpr int LarghezzaDiCasella = 32;  // pixels
constexpr int AltezzaDiCasella = 32;
// A list of a wide page goes on in another column where its counter, and 2, make a multiple of it.
constexpr int PassoOrizzontali = 15;
constexpr int PassoVerticali = 12;

constexpr std::string_view AltraTabella = R"(</table><table border="1" cellspacing="0"><tr>)";

bool Larga() {
  return NumColonne > MaxColonneAffiancate;
}

void ScriviIntestazione(TestoDiPagina& pagina, const ValoriDiPagina& valori) {
  ScriviTesta(pagina, valori);
  pagina.Riga(R"(<BODY style="font-family: )", valori.font, FineDelloStile(valori), '>');
  ScriviTitolo(pagina, valori);
  pagina.Riga(R"(<div align="center"><center><table border="1" cellspacing="0"><tr>)");
}

void ScriviVoce(TestoDiPagina& pagina, const Slot& slot) {
  pagina.Riga(R"(<li value=")", NumeroCasella(slot.inizio.colonna, slot.inizio.riga), R"(">)",
              DefinizioneOTrattini(slot, Trattini));
}

void SpezzaColonna(TestoDiPagina& pagina, int contatore, int passo) {
  if (Larga() && (contatore + 2) % passo == 0)
    pagina.Riga(R"(</li></ol></td><td valign="top"><ol>)");
}

void ScriviOrizzontali(TestoDiPagina& pagina) {
  int contatore = 0;
  PerOgniParola(Orizzontale, [&](const Slot& slot) {
    ScriviVoce(pagina, slot);
    SpezzaColonna(pagina, ++contatore, PassoOrizzontali);
  });
}

// Here the counter goes up at every cell, and once more at each entry: the columns depend on where
// the words stand in the grid.
void ScriviVerticali(TestoDiPagina& pagina) {
  int contatore = 0;
  for (int r = 1; r <= NumRighe; ++r) {
    for (int c = 1; c <= NumColonne; ++c) {
      ++contatore;
      if (!IniziaParola({c, r}, Verticale)) continue;
      ScriviVoce(pagina, SlotDa({c, r}, Verticale));
      SpezzaColonna(pagina, ++contatore, PassoVerticali);
    }
  }
}

struct Vista {
  std::string testo;
  std::string_view allineamento;
};

// What a cell shows. The characters of a black one are black on black.
Vista VistaDi(char lettera, std::int16_t modo) {
  if (!StampaSoluzioni) return {std::string(1, lettera), ""};
  if (lettera == CellaNera) return {modo == PaginaPerIlBrowser ? "##" : "", "center"};
  return {"&nbsp;", "left"};
}

void ScriviCasella(TestoDiPagina& pagina, Casella casella, std::int16_t modo) {
  const Vista vista = VistaDi(LetteraCasella(casella.colonna, casella.riga), modo);
  const int numero = NumeroCasella(casella.colonna, casella.riga);
  pagina.Riga(R"(<p align=")", vista.allineamento, R"(">)");
  if (numero != 0) pagina.Riga(R"(<sup><font size="1">)", numero, "</font></sup>");
  pagina.Riga(R"(<font size="3">)", vista.testo, "</td>");
}

}  // namespace

std::string PaginaStatica(std::int16_t modo) {
  const ValoriDiPagina valori = ValoriAttuali();
  TestoDiPagina pagina;
  ScriviIntestazione(pagina, valori);
  pagina.Riga(R"(<td valign="top"><p align="center"><b>ORIZZONTALI</b><ol>)");
  ScriviOrizzontali(pagina);
  pagina.Riga("</li></ol></td>");
  if (Larga()) pagina.Riga(AltraTabella);
  ScriviGriglia(pagina, LarghezzaDiCasella, AltezzaDiCasella,
                [&](Casella casella, bool) { ScriviCasella(pagina, casella, modo); });
  pagina.Riga("</li></ol></td></table>");
  if (Larga()) pagina.Riga(AltraTabella);
  pagina.Riga(R"(<td><div align="center">)");
  pagina.Riga(R"(<td valign="top"><p align="center"><b>VERTICALI</b><ol>)");
  ScriviVerticali(pagina);
  pagina.Riga("</td></table>");
  ScriviCollegamento(pagina, "Stampato", valori);
  pagina.Riga("</body></html>");
  return std::move(pagina).Prendi();
}

bool creadocHTML(std::int16_t modo) {
  return NumColonne != 0 && ScriviUscita(FileDiUscita(NomePaginaStatica), PaginaStatica(modo));
}

void MostraPaginaStatica() {
  if (creadocHTML(PaginaPerIlBrowser)) ApriUscita(FileDiUscita(NomePaginaStatica));
}

}  // namespace telarium
