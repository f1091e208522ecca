#include "output/script_page.h"

#include "model/words.h"
#include "output/output_file.h"
#include "output/page_text.h"

namespace telarium {
namespace {

constexpr std::string_view Segnaposto = "' -----";
constexpr std::size_t MaxByteModello = 16u << 20;

void ScriviParole(TestoDiPagina& pagina) {
  PerOgniParola(Orizzontale, [&](const Slot& slot) {
    pagina.Riga('"', ParolaCasella(slot.inizio.colonna, slot.inizio.riga, Orizzontale), "\", ");
  });
}

void ScriviDati(TestoDiPagina& pagina) {
  pagina.Riga("CrosswordWidth = ", NumColonne);
  pagina.Riga("CrosswordHeight = ", NumRighe);
  pagina.Riga("Words = 100");
  pagina.Riga("Word = Array(");
  for (int volta = 1; volta <= 2; ++volta)
    ScriviParole(pagina);
  pagina.Riga(")");
  pagina.Riga("Clue = Array(");
  ScriviParole(pagina);
  pagina.Riga("LastHorizontalWord = 1");
}

}  // namespace

std::string PaginaDaModello(std::string_view modello) {
  TestoDiPagina pagina;
  LettoreDiRighe righe(modello);
  for (std::string_view riga; righe.Prossima(riga);) {
    if (SenzaSpazi(riga).starts_with(Segnaposto)) {
      ScriviDati(pagina);
    } else {
      pagina.Riga(riga);
    }
  }
  return std::move(pagina).Prendi();
}

void EsportaDaModello() {
  if (NumColonne == 0) return;
  std::string modello;
  const Percorso file = PercorsoNellaCartella(CartellaProgramma, "template.txt");
  std::error_code errore;
  if (LeggiFile(file, MaxByteModello, modello, errore) != EsitoLettura::Letto)
    return AvvisaErroreDiUscita(file, errore);
  static_cast<void>(ScriviUscita(FileDiUscita("prova.html"), PaginaDaModello(modello)));
}

}  // namespace telarium
