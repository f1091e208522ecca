#include "editor/cell_drawing.h"

#include <algorithm>
#include <string_view>

#include "editor/settings.h"
#include "platform/text.h"

namespace telarium {
namespace {

// A settings file can hold any number; as many points as the cell has pixels overfill it already.
constexpr int MaxPercentualeCorpo = 100;

double Corpo(int percentuale, double lato) {
  return lato / 100.0 * std::clamp(percentuale, 0, MaxPercentualeCorpo);
}

}  // namespace

double RientroCasellaNera(double lato) {
  const double m = std::min((100 - PercentualeRiquadro) / 2.0, 50.0);
  return m < 1 ? 1 : m * lato / 100;
}

void DisegnaContorno(Superficie& superficie, double x, double y, double lato) {
  superficie.Riquadro(x, y, x + lato, y + lato, ColoreNero);
}

void DisegnaCasellaNera(Superficie& superficie, double x, double y, double lato, Colore colore) {
  const double g = RientroCasellaNera(lato);
  superficie.RiquadroPieno(x + g, y + g, x + lato - g, y + lato - g, colore);
}

double CorpoLettere(double lato, double minimo) {
  return std::max(Corpo(AltezzaCaratteri, lato), minimo);
}

double CorpoNumeri(double lato) {
  return Corpo(AltezzaNumeri, lato);
}

void ScriviLettera(Superficie& superficie, double centroX, double centroY, double lato,
                   char lettera) {
  const std::string_view testo(&lettera, 1);
  const int mezzaLarghezza = ArrotondaPari(superficie.LarghezzaTesto(testo) / 2);
  const int mezzaAltezza = ArrotondaPari(superficie.AltezzaTesto(testo) / 2);
  superficie.Posizione(centroX - mezzaLarghezza,
                       centroY - mezzaAltezza + lato / 100.0 * DistanzaDaCentro);
  superficie.Scrivi(testo);
}

void ScriviNumero(Superficie& superficie, double x, double y, double distanza, int numero) {
  constexpr int Bordo = 2;  // beside the cell's outline
  superficie.Posizione(x + Bordo + distanza, y + distanza);
  superficie.Scrivi(std::to_string(numero));
}

const std::string& FontDelleLettere() {
  if (NomeFont.empty()) NomeFont = CarattereIniziale;
  return NomeFont;
}

}  // namespace telarium
