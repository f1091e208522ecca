#include "output/sheet.h"

#include <algorithm>
#include <limits>
#include <string>

#include "auxiliary/addresses.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "model/words.h"
#include "output/clue_entries.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double MargineProvvisorio = 50;  // on each side, for the size of a cell
constexpr double MargineAlto = 50;         // of the pages behind the first one
constexpr double SottoLoSchema = 10;
constexpr std::size_t TrattiniSenzaDefinizione = 30;

// Rounded, for a variable of 16 bits.
std::int16_t Intero16(double valore) {
  using Limiti = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(
      ArrotondaPari(std::clamp<double>(valore, Limiti::min(), Limiti::max())));
}

Geometria GeometriaDelFoglio(const Superficie& superficie, const Foglio& foglio) {
  const auto lato = [&foglio](double misura, int caselle) {
    const auto intero = Intero16((misura - 2 * MargineProvvisorio - 4) / caselle);
    return std::max<int>(intero, foglio.latoMinimo);
  };
  const auto cella = static_cast<std::int16_t>(
      std::min(lato(foglio.larghezza, NumColonne), lato(foglio.altezza / 2, NumRighe)));
  return {.lato = cella,
          .x = Intero16((superficie.LarghezzaSuperficie() - NumColonne * cella) / 2),
          .y = Intero16((foglio.altezzaPerCentrare / 2 - NumRighe * cella) / 2)};
}

void DisegnaGriglia(Superficie& superficie, const Geometria& geometria, const Foglio& foglio) {
  const auto& [lato, x, y] = geometria;
  const int d = foglio.distanzaCornice;
  superficie.Riquadro(x - d, y - d, x + NumColonne * lato + d, y + NumRighe * lato + d, ColoreNero);
  DisegnaCaselle(superficie, geometria, !StampaSoluzioni, foglio.posto);
  superficie.CorpoCarattere(CorpoNumeri(lato / foglio.riduzioneCorpi));
  DisegnaNumeri(superficie, geometria, foglio.posto);
}

void VaiAlMargine(Superficie& superficie, int margine) {
  superficie.Posizione(margine, superficie.PosizioneY());
}

// Goes on at the top of another page where the line would pass the lower edge.
void FaiPosto(Superficie& superficie) {
  const double x = superficie.PosizioneX();
  const double fine = superficie.PosizioneY() + superficie.AltezzaTesto({});
  if (fine > superficie.AltezzaSuperficie() && superficie.NuovaPagina())
    superficie.Posizione(x, MargineAlto);
}

void ScriviAlMargine(Superficie& superficie, int margine, std::string_view testo) {
  VaiAlMargine(superficie, margine);
  FaiPosto(superficie);
  superficie.ScriviRiga(testo);
}

// The clues of one direction, from the current height on.
void ScriviElenco(Superficie& superficie, const Foglio& foglio, std::string_view titolo,
                  int direzione) {
  superficie.Grassetto(true);
  ScriviAlMargine(superficie, foglio.margine, titolo);
  superficie.Grassetto(false);
  VaiAlMargine(superficie, foglio.margine);
  const std::string spazi(foglio.spaziInFondo, ' ');
  const auto scrivi = [&](int numero, const std::string& definizione) {
    const std::string voce = Unisci(numero, ' ', SenzaInterruzioni(definizione), spazi);
    foglio.definizione(superficie, voce, foglio.margine);
  };
  PerOgniDefinizione(direzione, TrattiniSenzaDefinizione, scrivi);
}

void VaiACapo(Superficie& superficie, int volte) {
  for (int i = 0; i < volte; ++i)
    superficie.ACapo();
}

void ScriviRigheFinali(Superficie& superficie, int margine) {
  for (const std::string& riga :
       {Unisci(DataDiOggi(), "   -   ", TestoPercorso(NomeCruciverba)), Schema(1),
        "Creazione e stampa con Telarium - " + ValoreIndirizzo(Indirizzo::SitoProdotto)})
    ScriviAlMargine(superficie, margine, riga);
}

}  // namespace

Geometria DisegnaFoglio(Superficie& superficie, const Foglio& foglio) {
  const Geometria geometria = GeometriaDelFoglio(superficie, foglio);
  superficie.CorpoCarattere(CorpoLettereIntero(geometria.lato, foglio.riduzioneCorpi));
  superficie.Carattere(FontDelleLettere());
  if (geometria.lato > 0) DisegnaGriglia(superficie, geometria, foglio);

  superficie.CorpoCarattere(foglio.corpoDefinizioni);
  superficie.Posizione(foglio.margine, geometria.BordoAlto(NumRighe + 1) + SottoLoSchema);
  ScriviElenco(superficie, foglio, "ORIZZONTALI:", Orizzontale);
  VaiACapo(superficie, 2);
  ScriviElenco(superficie, foglio, "VERTICALI:", Verticale);
  VaiACapo(superficie, foglio.aCapoPrimaDellaData);
  ScriviRigheFinali(superficie, foglio.margine);
  return geometria;
}

void ScriviDefinizione(Superficie& superficie, std::string_view voce, int margine, double limite) {
  const int x = ArrotondaPari(superficie.PosizioneX());
  if (superficie.LarghezzaSuperficie() - limite < superficie.LarghezzaTesto(voce) + x) {
    superficie.ACapo();
    VaiAlMargine(superficie, margine);
  }
  FaiPosto(superficie);
  const std::size_t spazio = std::min(voce.find(' '), voce.size());
  superficie.Grassetto(true);
  superficie.Scrivi(voce.substr(0, spazio));
  superficie.Grassetto(false);
  superficie.Scrivi(voce.substr(spazio));
}

}  // namespace telarium
