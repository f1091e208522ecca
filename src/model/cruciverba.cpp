#include "model/cruciverba.h"

#include <algorithm>
#include <utility>

#include "model/crossword_format.h"

namespace telarium {

char CarattereDi(const Cruciverba& cruciverba, Casella casella) {
  Verifica(NelloSchema(cruciverba, casella), "Cruciverba: casella fuori dallo schema");
  const auto riga = static_cast<std::size_t>(casella.riga) - 1;
  if (riga >= cruciverba.griglia.size()) return CellaVuota;
  const std::size_t posto = IndiceInRiga(casella.colonna);
  const std::string& testo = *cruciverba.griglia[riga];
  return posto < testo.size() ? testo[posto] : CellaVuota;
}

void ScriviCarattere(Cruciverba& cruciverba, Casella casella, char carattere) {
  Verifica(NelloSchema(cruciverba, casella), "Cruciverba: casella fuori dallo schema");
  const auto riga = static_cast<std::size_t>(casella.riga) - 1;
  if (riga >= cruciverba.griglia.size()) cruciverba.griglia.resize(riga + 1);
  ScriviInRiga(cruciverba.griglia[riga].Proprio(), casella.colonna, carattere);
}

void ScriviCaratteri(Cruciverba& cruciverba, const Slot& slot, std::string_view parola) {
  const int lunghezza = std::min(slot.lunghezza, static_cast<int>(parola.size()));
  for (int k = 1; k <= lunghezza; ++k)
    ScriviCarattere(cruciverba, slot.Cella(k), parola[static_cast<std::size_t>(k) - 1]);
}

void Ridimensiona(Cruciverba& cruciverba, int colonne, int righe) {
  Verifica(colonne >= 1 && colonne <= MaxColonne && righe >= 1 && righe <= MaxRighe,
           "Cruciverba: dimensioni fuori dai limiti");
  const auto prima = 2 * static_cast<std::size_t>(cruciverba.colonne);
  const auto dopo = 2 * static_cast<std::size_t>(colonne);
  cruciverba.griglia.resize(static_cast<std::size_t>(righe), std::string(dopo, CellaVuota));
  for (Condiviso<std::string>& condivisa : cruciverba.griglia) {
    if (colonne == cruciverba.colonne) break;
    std::string& riga = condivisa.Proprio();
    if (riga.size() > prima) riga.resize(prima);  // what a line holds past its last cell is no cell
    riga.resize(dopo, CellaVuota);
  }
  cruciverba.colonne = colonne;
  cruciverba.righe = righe;
  std::string& dimensioni = cruciverba.intestazione.Proprio().back();
  dimensioni = ConDimensioni(std::move(dimensioni), {colonne, righe});
}

}  // namespace telarium
