#include "editor/cell_drawing.h"

#include <algorithm>
#include <string_view>

#include "editor/settings.h"
#include "platform/text.h"

namespace telarium {
namespace {

// A settings file can hold any number; as many points as the cell has pixels overfill it already.
constexpr int MaxPercentualeCorpo = 100;

constexpr double MinCorpoIntero = 5;  // points

int Percentuale(int impostata) {
  return std::clamp(impostata, 0, MaxPercentualeCorpo);
}

double Corpo(int impostata, double lato) {
  return lato / 100.0 * Percentuale(impostata);
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

double CorpoLettereIntero(double lato, double riduzione) {
  // The product before the division: the inexact quotient would tip what lies between two integers.
  return std::max<double>(ArrotondaPari(lato * Percentuale(AltezzaCaratteri) / (100 * riduzione)),
                          MinCorpoIntero);
}

double CorpoNumeri(double lato) {
  return Corpo(AltezzaNumeri, lato);
}

void ScriviLettera(Superficie& superficie, double centroX, double centroY, double lato,
                   char lettera, const PostoInCasella& posto) {
  const std::string_view testo(&lettera, 1);
  const auto meta = [&posto](double misura) {
    return posto.misureIntere ? ArrotondaPari(misura / 2) : misura / 2;
  };
  const double giu = lato / 100.0 / posto.riduzioneCentro * DistanzaDaCentro;
  superficie.Posizione(centroX - meta(superficie.LarghezzaTesto(testo)) + posto.letteraADestra,
                       centroY - meta(superficie.AltezzaTesto(testo)) + giu);
  superficie.Scrivi(testo);
}

void ScriviNumero(Superficie& superficie, double x, double y, double distanza, int numero,
                  const PostoInCasella& posto) {
  superficie.Posizione(x + posto.numeroADestra + distanza, y + distanza);
  superficie.Scrivi(std::to_string(numero));
}

const std::string& FontDelleLettere() {
  if (NomeFont.empty()) NomeFont = CarattereIniziale;
  return NomeFont;
}

}  // namespace telarium
