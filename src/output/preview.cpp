#include "output/preview.h"

#include <algorithm>

#include "editor/commands.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "model/pointer.h"
#include "model/state.h"
#include "output/sheet.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int MinBanda = 6;          // beside the page, for the type and the margin of the clues
constexpr int ParteDelMargine = 12;  // of the page's width

// The width of an A4 page of that height.
double LarghezzaPagina(double altezza) {
  return altezza / 297 * 210;
}

// The page between the bars, in pixels.
struct Pagina {
  double cima, fondo;  // heights of the bars
  double utile;        // between them
  int altezza;
  int banda;  // what is free on each side; negative in a narrow window

  explicit Pagina(const Superficie& finestra)
      : cima(LaFinestra().AltezzaToolbar1()),
        fondo(LaFinestra().AltezzaStatusBar1()),
        utile(finestra.AltezzaSuperficie() - cima - fondo),
        altezza(ArrotondaPari(utile)),
        banda(ArrotondaPari((finestra.LarghezzaSuperficie() - LarghezzaPagina(altezza)) / 2)) {}
};

void DisegnaPagina(Superficie& finestra, const Pagina& pagina) {
  const double destra = finestra.LarghezzaSuperficie() - pagina.banda;
  const double sotto = finestra.AltezzaSuperficie() - 1 - pagina.fondo;
  finestra.RiquadroPieno(pagina.banda, pagina.cima, destra, sotto, ColoreBianco);
  finestra.Riquadro(pagina.banda, pagina.cima, destra, sotto, ColoreCornice);
}

Foglio FoglioSullaFinestra(const Superficie& finestra, const Pagina& pagina) {
  const int banda = std::max(pagina.banda, MinBanda);
  return {.larghezza = LarghezzaPagina(pagina.utile),
          .altezza = pagina.utile,
          .latoMinimo = 1,
          .altezzaPerCentrare = finestra.AltezzaSuperficie() + pagina.cima + pagina.fondo,
          .riduzioneCorpi = 1,
          .distanzaCornice = 2,
          .posto = {},
          .corpoDefinizioni = banda / 29.7 / 1.4,
          .margine = ArrotondaPari(LarghezzaPagina(pagina.altezza) / ParteDelMargine + banda),
          .spaziInFondo = 2,
          .definizione = AnteprimaDefinizione,
          .aCapoPrimaDellaData = 3};
}

}  // namespace

void AnteprimaSchema() {
  Superficie* finestra = FinestraPrincipale();
  if (NumColonne == 0 || !finestra) return;
  const Clessidra clessidra;
  IniziaAnteprima();
  finestra->Pulisci();
  const bool grassetto = finestra->Grassetto();
  const Pagina pagina(*finestra);
  DisegnaPagina(*finestra, pagina);
  DisegnaFoglio(*finestra, FoglioSullaFinestra(*finestra, pagina));
  finestra->Grassetto(grassetto);
}

void AnteprimaDefinizione(Superficie& superficie, std::string_view voce, int margine) {
  ScriviDefinizione(superficie, voce, margine, margine);
}

}  // namespace telarium
