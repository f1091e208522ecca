#include "output/word_export.h"

#include "output/clue_entries.h"
#include "output/clue_page.h"
#include "output/output_file.h"
#include "output/static_page.h"
#include "output/window_picture.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr std::size_t TrattiniDelTesto = 12;
constexpr std::size_t TrattiniDellaPagina = 10;
constexpr const char* NomeDocumento = "PRENDIFILETELARIUM.DOC";

void ScriviVoci(TestoDiPagina& testo, int direzione) {
  PerOgniParola(direzione, [&](const Slot& slot) {
    testo.Scrivi(NumeroCasella(slot.inizio.colonna, slot.inizio.riga), ' ',
                 DefinizioneOTrattini(slot, TrattiniDelTesto), "  ");
  });
}

}  // namespace

void EsportaInWord() {
  if (creadocHTML(PaginaPerWord)) AperturaWord();
}

void AperturaWord() {
  static_cast<void>(Sistema().ApriInWord(FileDiUscita(NomePaginaStatica)));
}

std::string TestoNonome() {
  TestoDiPagina testo;
  testo.Riga("ORIZZONTALI:");
  ScriviVoci(testo, Orizzontale);
  testo.Riga();
  testo.Riga("VERTICALI:");
  ScriviVoci(testo, Verticale);
  return std::move(testo).Prendi();
}

std::string PaginaNonome() {
  TestoDiPagina pagina;
  pagina.Riga("<html><head></head><body>");
  ScriviCorpoDiDefinizioni(pagina, TrattiniDellaPagina);
  return std::move(pagina).Prendi();
}

bool ScriviTestiNonome(const Percorso& cartella) {
  return ScriviUscita(PercorsoNellaCartella(cartella, "NONOME.TXT"), TestoNonome()) &&
         ScriviUscita(PercorsoNellaCartella(cartella, "NONOME.html"), PaginaNonome());
}

void EsportaInWordConPicture() {
  if (NumColonne == 0) return;
  ChiUsa().CediAiMessaggi();
  const SchemaSuBianco suBianco(false);
  if (!ScriviPicture(FileDiUscita("NONOME.BMP")) || !ScriviTestiNonome(CartellaProgramma)) return;
  const Percorso documento = FileDiUscita(NomeDocumento);
  if (!Sistema().ApriInWord(documento)) ApriUscita(documento);
}

}  // namespace telarium
