#include "composer/lattice.h"

#include "platform/check.h"

namespace telarium {

Reticolo::Reticolo(const Problema& problema) {
  for (const SlotDaRiempire& slot : problema.slot) {
    caselle_.insert(caselle_.end(), slot.caselle.begin(), slot.caselle.end());
    inizi_.push_back(static_cast<int>(caselle_.size()));
  }
  perCasella_.resize(problema.lettere.size());
  Collega();
}

Reticolo::Reticolo(std::span<const int> caselle, std::span<const int> lunghezze, int quanteCaselle)
    : caselle_(caselle.begin(), caselle.end()), perCasella_(S(quanteCaselle)) {
  for (const int lunghezza : lunghezze)
    inizi_.push_back(inizi_.back() + lunghezza);
  Collega();
}

void Reticolo::Collega() {
  for (int slot = 0; slot < Slot(); ++slot) {
    const auto caselle = CaselleDi(slot);
    Verifica(LunghezzaDiVoce(caselle.size()), "lunghezza dello slot");
    perLunghezza_[caselle.size()].push_back(slot);
    for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
      Verifica(caselle[posto] >= 0 && caselle[posto] < Caselle(), "casella dello slot");
      auto& [primo, secondo] = perCasella_[S(caselle[posto])];
      Verifica(secondo.slot < 0, "casella in due slot al massimo");
      (primo.slot < 0 ? primo : secondo) = {slot, static_cast<int>(posto)};
    }
  }
  incroci_.reserve(caselle_.size());
  for (int slot = 0; slot < Slot(); ++slot) {
    for (const int casella : CaselleDi(slot)) {
      const auto& [primo, secondo] = SlotDi(casella);
      incroci_.push_back(primo.slot == slot ? secondo : primo);
    }
  }
}

}  // namespace telarium
