#include "lexicon/layer.h"

namespace telarium {

ColonneDiVoci Strato::Colonne(int lunghezza, MemoriaDiColonne& memoria) const {
  memoria = {};
  for (int i = 0; i < Conta(lunghezza); ++i) {
    const Voce voce = Leggi(Prima(lunghezza) + static_cast<NumeroVoce>(i));
    memoria.lettere += voce.parola;
    memoria.punteggi.push_back(static_cast<std::uint8_t>(voce.punteggio));
    memoria.segni.push_back(static_cast<std::uint16_t>(
        voce.segni.Bit() | (SoloFinita(voce.letture) ? BitSoloFinita : 0)));
  }
  return {memoria.lettere, memoria.punteggi, memoria.segni};
}

}  // namespace telarium
