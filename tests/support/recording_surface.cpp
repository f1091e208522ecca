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

void RecordingSurface::Pulisci() {
  calls.push_back("Pulisci");
}

void RecordingSurface::Riquadro(double x1, double y1, double x2, double y2, Colore colore) {
  calls.push_back(Call("Riquadro", {x1, y1, x2, y2, static_cast<double>(colore)}));
}

void RecordingSurface::RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) {
  calls.push_back(Call("RiquadroPieno", {x1, y1, x2, y2, static_cast<double>(colore)}));
}

void RecordingSurface::Carattere(std::string_view nome) {
  calls.push_back("Carattere " + std::string(nome));
}

void RecordingSurface::CorpoCarattere(double punti) {
  size_ = punti;
  calls.push_back(Call("CorpoCarattere", {punti}));
}

void RecordingSurface::Grassetto(bool grassetto) {
  bold_ = grassetto;
  calls.push_back(grassetto ? "Grassetto si" : "Grassetto no");
}

void RecordingSurface::Corsivo(bool corsivo) {
  italic_ = corsivo;
  calls.push_back(corsivo ? "Corsivo si" : "Corsivo no");
}

double RecordingSurface::LarghezzaTesto(std::string_view testo) const {
  return static_cast<double>(testo.size()) * size_ / 2;
}

double RecordingSurface::AltezzaTesto(std::string_view) const {
  return size_;
}

void RecordingSurface::Posizione(double x, double y) {
  x_ = x;
  y_ = y;
  calls.push_back(Call("Posizione", {x, y}));
}

void RecordingSurface::Scrivi(std::string_view testo) {
  x_ += LarghezzaTesto(testo);
  calls.push_back("Scrivi " + std::string(testo));
}

void RecordingSurface::DisegnoPersistente(bool persistente) {
  calls.push_back(persistente ? "DisegnoPersistente si" : "DisegnoPersistente no");
}

}  // namespace telarium
