#include "crossworddialogs/model_preview.h"

#include <algorithm>

#include "editor/grid_preview.h"
#include "editor/settings.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double Margine = 40;  // of a model's preview, both sides together
// Of the side of a cell, in points: the letter begins in the middle of its cell and has half the
// cell for itself.
constexpr double CorpoDellaLettera = 0.28;

}  // namespace

std::vector<Modello> ModelliDaMostrare(const Percorso& fileModelli) {
  std::vector<Modello> modelli;
  if (!CaricaModelli(fileModelli, modelli)) return {};
  modelli.resize(std::min<std::size_t>(modelli.size(), MaxModelli));
  for (const Modello& modello : modelli)
    EsigiModelloValido(modello);
  return modelli;
}

std::string NomeDelModello(const Modello& modello) {
  if (modello.empty()) return {};
  return Unisci("Telar ", modello.front().size(), 'x', modello.size());
}

void DisegnaModello(const Modello& modello, Superficie& superficie) {
  superficie.Pulisci();
  if (modello.empty()) return;
  const int colonne = static_cast<int>(modello.front().size());
  const int righe = std::min(static_cast<int>(modello.size()), MaxRigheModello);
  const AnteprimaDiSchema anteprima(superficie, colonne, righe, Margine);
  if (anteprima.Lato() == 0) return;
  superficie.Carattere(FontDelleLettere());
  superficie.CorpoCarattere(anteprima.Lato() * CorpoDellaLettera);
  for (int r = 1; r <= righe; ++r) {
    for (int c = 1; c <= colonne; ++c) {
      const char& carattere =
          modello[static_cast<std::size_t>(r) - 1][static_cast<std::size_t>(c) - 1];
      anteprima.Casella(c, r, carattere, ColoreNero, [&](double x, double y) {
        superficie.Posizione(x, y + anteprima.Lato() / 100.0 * DistanzaDaCentro);
        superficie.Scrivi(std::string_view(&carattere, 1));
      });
    }
  }
}

}  // namespace telarium
