#include "support/recording_surface.h"

#include <initializer_list>
#include <sstream>

namespace telarium {
namespace {

std::string Call(std::string_view name, std::initializer_list<double> numbers) {
  std::ostringstream line;
  line.precision(12);
  line << name;
  for (const double number : numbers)
    line << ' ' << number;
  return line.str();
}

}  // namespace

template <class Surface>
void Recording<Surface>::Pulisci() {
  calls.push_back("Pulisci");
}

template <class Surface>
void Recording<Surface>::Riquadro(double x1, double y1, double x2, double y2, Colore colore) {
  calls.push_back(Call("Riquadro", {x1, y1, x2, y2, static_cast<double>(colore)}));
}

template <class Surface>
void Recording<Surface>::RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) {
  calls.push_back(Call("RiquadroPieno", {x1, y1, x2, y2, static_cast<double>(colore)}));
}

template <class Surface>
void Recording<Surface>::Carattere(std::string_view nome) {
  calls.push_back("Carattere " + std::string(nome));
}

template <class Surface>
void Recording<Surface>::CorpoCarattere(double punti) {
  size_ = punti;
  calls.push_back(Call("CorpoCarattere", {punti}));
}

template <class Surface>
void Recording<Surface>::Grassetto(bool grassetto) {
  bold_ = grassetto;
  calls.push_back(grassetto ? "Grassetto si" : "Grassetto no");
}

template <class Surface>
void Recording<Surface>::Corsivo(bool corsivo) {
  italic_ = corsivo;
  calls.push_back(corsivo ? "Corsivo si" : "Corsivo no");
}

template <class Surface>
double Recording<Surface>::LarghezzaTesto(std::string_view testo) const {
  return static_cast<double>(testo.size()) * size_ / 2;
}

template <class Surface>
double Recording<Surface>::AltezzaTesto(std::string_view) const {
  return size_;
}

template <class Surface>
void Recording<Surface>::Posizione(double x, double y) {
  x_ = x;
  y_ = y;
  calls.push_back(Call("Posizione", {x, y}));
}

template <class Surface>
void Recording<Surface>::Scrivi(std::string_view testo) {
  x_ += LarghezzaTesto(testo);
  calls.push_back("Scrivi " + std::string(testo));
}

template <class Surface>
void Recording<Surface>::DisegnoPersistente(bool persistente) {
  calls.push_back(persistente ? "DisegnoPersistente si" : "DisegnoPersistente no");
}

template class Recording<Superficie>;
template class Recording<LavoroDiStampa>;

void RecordingJob::ScalaSuperficie(double larghezza, double altezza) {
  width = larghezza;
  height = altezza;
  calls.push_back(Call("ScalaSuperficie", {larghezza, altezza}));
}

bool RecordingJob::NuovaPagina() {
  calls.push_back("NuovaPagina");
  return true;
}

}  // namespace telarium
