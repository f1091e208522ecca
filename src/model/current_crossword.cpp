#include "model/current_crossword.h"

#include "model/words.h"

namespace telarium {
namespace {

std::string& RigaDiGriglia(std::size_t indice) {
  return Schema(static_cast<int>(indice) + 1 + RigheIntestazione);
}

}  // namespace

Cruciverba CruciverbaCorrente() {
  Cruciverba cruciverba;
  for (int i = 1; i <= RigheIntestazione; ++i)
    cruciverba.intestazione.Proprio()[static_cast<std::size_t>(i) - 1] = Schema(i);
  cruciverba.colonne = NumColonne;
  cruciverba.righe = NumRighe;
  cruciverba.griglia.resize(static_cast<std::size_t>(NumRighe));
  for (std::size_t i = 0; i < cruciverba.griglia.size(); ++i)
    cruciverba.griglia[i] = RigaDiGriglia(i);
  for (int c = 1; c <= MaxColonne; ++c) {
    for (int r = 1; r <= MaxRighe; ++r) {
      for (const int d : Direzioni) {
        const std::string& definizione = Definizione(c, r, d);
        if (!definizione.empty()) cruciverba.definizioni.Imposta(definizione, c, r, d);
      }
      if (ColoreCasella(c, r) != ColoreNero) cruciverba.colori.Imposta(ColoreCasella(c, r), c, r);
    }
  }
  cruciverba.laboratorio = LaboratorioDelCruciverba;
  return cruciverba;
}

void PrendiCruciverba(const Cruciverba& cruciverba) {
  for (int i = 1; i <= RigheIntestazione; ++i)
    Schema(i) = (*cruciverba.intestazione)[static_cast<std::size_t>(i) - 1];
  NumColonne = static_cast<std::int16_t>(cruciverba.colonne);
  NumRighe = static_cast<std::int16_t>(cruciverba.righe);
  for (std::size_t i = 0; i < cruciverba.griglia.size(); ++i)
    RigaDiGriglia(i) = *cruciverba.griglia[i];
  SvuotaDefinizioni();
  cruciverba.definizioni.PerOgni([](const std::string& definizione, int c, int r, int d) {
    Definizione(c, r, d) = definizione;
  });
  ColoreCasella.Riempi(ColoreNero);
  cruciverba.colori.PerOgni([](Colore colore, int c, int r) { ColoreCasella(c, r) = colore; });
  LaboratorioDelCruciverba = cruciverba.laboratorio;
}

bool ModificaCruciverba(std::string_view, const std::function<void(Cruciverba&)>& funzione) {
  const Cruciverba prima = CruciverbaCorrente();
  Cruciverba dopo = prima;
  funzione(dopo);
  if (dopo == prima) return false;
  PrendiCruciverba(dopo);
  RicalcolaCaselle();
  return true;
}

}  // namespace telarium
