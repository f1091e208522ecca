#include "crossworddialogs/model_preview.h"

#include <algorithm>

#include "crossworddialogs/grid_preview.h"
#include "crossworddialogs/model_file.h"
#include "editor/cell_drawing.h"
#include "editor/settings.h"
#include "model/state.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double Margine = 40;  // of a model's preview, both sides together
// Of the side of a cell, in points: the letter begins in the middle of its cell and has half the
// cell for itself.
constexpr double CorpoDellaLettera = 0.375;

void DisegnaCasella(Superficie& superficie, const AnteprimaDiSchema& anteprima, int colonna,
                    int riga, char carattere) {
  anteprima.Contorno(colonna, riga);
  if (carattere == CellaNera) {
    anteprima.Nera(colonna, riga, ColoreNero);
  } else if (carattere != CellaVuota) {
    superficie.Posizione(anteprima.CentroX(colonna),
                         anteprima.CentroY(riga) + anteprima.Lato() / 100.0 * DistanzaDaCentro);
    superficie.Scrivi(std::string_view(&carattere, 1));
  }
}

void DisegnaModello(Superficie& superficie, const Modello& modello) {
  const int colonne = static_cast<int>(modello.front().size());
  const int righe = std::min(static_cast<int>(modello.size()), MaxRigheModello);
  const AnteprimaDiSchema anteprima(superficie, colonne, righe, Margine);
  if (anteprima.Lato() == 0) return;
  superficie.Carattere(FontDelleLettere());
  superficie.CorpoCarattere(anteprima.Lato() * CorpoDellaLettera);
  for (int r = 1; r <= righe; ++r) {
    const std::string& riga = modello[static_cast<std::size_t>(r) - 1];
    for (int c = 1; c <= colonne; ++c)
      DisegnaCasella(superficie, anteprima, c, r, riga[static_cast<std::size_t>(c) - 1]);
  }
}

}  // namespace

std::vector<std::string> MostraModelli(const Percorso& fileModelli,
                                       std::span<Superficie* const> figure) {
  for (Superficie* figura : figure)
    figura->Pulisci();
  std::vector<std::string> nomi;
  std::vector<Modello> modelli;
  if (!CaricaModelli(fileModelli, modelli)) return nomi;
  modelli.resize(std::min(modelli.size(), figure.size()));
  for (const Modello& modello : modelli) {
    EsigiModelloValido(modello);
    if (modello.empty()) {
      nomi.emplace_back();
      continue;
    }
    DisegnaModello(*figure[nomi.size()], modello);
    nomi.push_back(Unisci("Telar ", modello.front().size(), 'x', modello.size()));
  }
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  return nomi;
}

}  // namespace telarium
