#include "editor/settings_sample.h"

namespace telarium {
namespace {

double Parte(const RettangoloInTwip& cella, int percentuale) {
  return percentuale * cella.larghezza / 100;
}

}  // namespace

RettangoloInTwip CellaDelCampione(int colonna, int riga, double lato) {
  return {colonna * lato, riga * lato, lato, lato};
}

RettangoloInTwip QuadratoNelCampione(const RettangoloInTwip& cella, int percentuale) {
  const double lato = Parte(cella, percentuale);
  return {cella.sinistra + (cella.larghezza - lato) / 2, cella.cima + (cella.altezza - lato) / 2,
          lato, lato};
}

double CorpoNelCampione(const RettangoloInTwip& cella, int percentuale) {
  return Parte(cella, percentuale) / TwipPerPixelDelCampione;
}

PuntoInTwip PostoDelNumero(const RettangoloInTwip& cella, int percentuale) {
  const double distanza = Parte(cella, percentuale);
  return {cella.sinistra + distanza, cella.cima + distanza};
}

PuntoInTwip PostoDellaLettera(const RettangoloInTwip& cella, int percentuale, double larghezza,
                              double altezza) {
  return {cella.sinistra + cella.larghezza / 2 - larghezza / 2,
          Parte(cella, percentuale) + cella.cima + cella.altezza / 2 - altezza / 2};
}

}  // namespace telarium
