#include "laboratory/entries.h"

#include <utility>

#include "platform/text.h"

namespace telarium {
InsiemeDiParole Piegate(const std::vector<std::string>& parole) {
  InsiemeDiParole insieme;
  for (const std::string& parola : parole) {
    if (auto piegata = PiegaGrafia(parola)) insieme.insert(std::move(*piegata));
  }
  return insieme;
}

std::string LettereDiCaselle(std::string_view caselle) {
  std::string lettere;
  for (const char carattere : caselle) {
    const auto lettera = LetteraDiCella(carattere);
    if (!lettera) return {};
    lettere += *lettera;
  }
  return lettere;
}

std::optional<int> VoceDiGriglia::Punteggio() const {
  if (!Giudicata()) return std::nullopt;
  return parola->punteggio;
}

bool VoceDiGriglia::Rara() const {
  const auto punteggio = Punteggio();
  return punteggio && telarium::Rara(*punteggio);
}

std::string VoceDiGriglia::Luogo() const {
  return Unisci(numero, slot.direzione == Orizzontale ? " orizzontale" : " verticale");
}

std::string VoceDiGriglia::Nome() const {
  const bool vuota = caselle.find_first_not_of(CellaVuota) == std::string::npos;
  return vuota ? Luogo() : Unisci(caselle, " (", Luogo(), ')');
}

ParoleVietate::ParoleVietate(const Lessico& lessico, const Cruciverba& cruciverba)
    : ParoleVietate(lessico, Piegate(cruciverba.laboratorio->vietate)) {}

ParoleVietate::ParoleVietate(const Lessico& lessico, InsiemeDiParole delCruciverba)
    : lessico_(lessico), delCruciverba_(std::move(delCruciverba)) {}

bool ParoleVietate::Ha(std::string_view parola) const {
  if (lessico_.Ammesse().contains(parola)) return false;
  return delCruciverba_.contains(parola) || lessico_.Bandita(parola);
}

std::vector<VoceDiGriglia> VociDi(const Cruciverba& cruciverba, const Derivati& griglia,
                                  const Criteri& criteri) {
  const InsiemeDiParole proprie = Piegate(cruciverba.laboratorio->proprie);
  const ParoleVietate vietate(criteri.lessico, cruciverba);
  std::vector<VoceDiGriglia> voci;
  voci.reserve(griglia.Parole().size());
  for (const Slot& slot : griglia.Parole()) {
    VoceDiGriglia& voce = voci.emplace_back();
    voce.slot = slot;
    voce.numero = griglia.Numero(slot.inizio);
    voce.caselle = griglia.Lettere(slot);
    voce.definizione =
        SenzaSpazi(cruciverba.definizioni(slot.inizio.colonna, slot.inizio.riga, slot.direzione));
    voce.libera = slot.lunghezza == MinLunghezzaVoce && criteri.regole.due == DueLettere::Tutte;
    voce.lettere = LettereDiCaselle(voce.caselle);
    if (!voce.Intera()) continue;
    voce.parola = criteri.lessico.Cerca(voce.lettere);
    voce.propria = proprie.contains(voce.lettere);
    voce.vietata = vietate.Ha(voce.lettere);
  }
  return voci;
}

}  // namespace telarium
