#include "clues/merging.h"

#include "platform/text.h"

namespace telarium {

bool CoppiaAmmessa(std::string_view parola, std::string_view definizione) {
  return !parola.empty() && !definizione.empty() &&
         parola.find_first_of(" -,.'") == std::string_view::npos;
}

void UnisciAllaRiga(Enciclopedia& enciclopedia, std::string_view definizione, ContoFusioni& conto) {
  if (enciclopedia.ContieneDefinizione(definizione)) return;
  enciclopedia.ScriviFacili(definizione);
  ++conto.definizioni;
}

void UnisciDefinizione(Enciclopedia& enciclopedia, std::string_view parola,
                       std::string_view definizione, ContoFusioni& conto) {
  if (enciclopedia.CercaParola(parola)) return UnisciAllaRiga(enciclopedia, definizione, conto);
  enciclopedia.AggiungiParola(parola, definizione);
  ++conto.parole;
}

std::string RapportoFusioni(std::string_view inizio, const ContoFusioni& conto) {
  return Unisci(inizio, "\r\nSono state aggiunte ", conto.parole,
                " parole all'enciclopedia.\r\nSono state aggiornate ", conto.definizioni,
                " definizioni all'enciclopedia aggiungendo nuovi termini.\r\n");
}

}  // namespace telarium
