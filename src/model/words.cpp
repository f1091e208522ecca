#include "model/words.h"

namespace telarium {
bool IniziaParola(Casella casella, int direzione) {
  const int tipo = TipoCasella(casella.colonna, casella.riga);
  return tipo == 5 || tipo == (direzione == Orizzontale ? 2 : 3);
}

Slot SlotDa(Casella casella, int direzione) {
  const std::string& parola = ParolaCasella(casella.colonna, casella.riga, direzione);
  return {casella, direzione, static_cast<int>(parola.size())};
}

}  // namespace telarium
