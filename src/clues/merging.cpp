#include "clues/merging.h"

#include "platform/text.h"

namespace telarium {

bool CoppiaAmmessa(std::string_view parola, std::string_view definizione) {
  return !parola.empty() && !definizione.empty() &&
         parola.find_first_of(" -,.'") == std::string_view::npos;
}

Presenza PresenzaDi(Enciclopedia& enciclopedia, std::string_view parola,
                    std::string_view definizione) {
  if (!enciclopedia.CercaParola(parola)) return Presenza::Assente;
  return enciclopedia.ContieneDefinizione(definizione) ? Presenza::ConDefinizione
                                                       : Presenza::SenzaDefinizione;
}

void UnisciDefinizione(Enciclopedia& enciclopedia, std::string_view parola,
                       std::string_view definizione, ContoFusioni& conto) {
  // What is there needs no writing, which not every store allows.
  if (PresenzaDi(enciclopedia, parola, definizione) == Presenza::ConDefinizione) return;
  Presenza presenza{};
  enciclopedia.Insieme([&] {
    // Another program may have been faster.
    presenza = PresenzaDi(enciclopedia, parola, definizione);
    if (presenza == Presenza::Assente) enciclopedia.AggiungiParola(parola, definizione);
    if (presenza == Presenza::SenzaDefinizione) enciclopedia.ScriviFacili(definizione);
  });
  if (presenza == Presenza::Assente) ++conto.parole;
  if (presenza == Presenza::SenzaDefinizione) ++conto.definizioni;
}

std::string TestoFusioni(std::string_view inizio, const ContoFusioni& conto) {
  return Unisci(inizio, "\r\nSono state aggiunte ", conto.parole,
                " parole all'enciclopedia.\r\nSono state aggiornate ", conto.definizioni,
                " definizioni all'enciclopedia aggiungendo nuovi termini.\r\n");
}

std::string RapportoDefinizioni::Intero() const {
  if (nonFatto.empty()) return testo;
  return Unisci(testo, testo.ends_with('\n') ? "" : "\r\n", nonFatto);
}

void ContoErrori::Aggiungi(const ErroreEnciclopedia& errore) {
  if (quanti_++ == 0) causa_ = errore.Descrizione();
}

std::string ContoErrori::Testo(std::string_view uno, std::string_view molti) const {
  if (quanti_ == 0) return {};
  return Unisci(quanti_, ' ', quanti_ == 1 ? uno : molti, ". ", causa_);
}

}  // namespace telarium
