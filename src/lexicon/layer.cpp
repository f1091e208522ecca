#include "lexicon/layer.h"

namespace telarium {

void Strato::LeggiTratti(int lunghezza, std::vector<TrattiDiVoce>& tratti) const {
  tratti.clear();
  const auto voci = static_cast<NumeroVoce>(Conta(lunghezza));
  for (NumeroVoce numero = Prima(lunghezza); tratti.size() < voci; ++numero) {
    const Voce voce = Leggi(numero);
    tratti.push_back({.parola = voce.parola,
                      .punteggio = static_cast<std::uint8_t>(voce.punteggio),
                      .soloFinita = SoloFinita(voce.letture),
                      .segni = voce.segni});
  }
}

}  // namespace telarium
