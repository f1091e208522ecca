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

std::string LettereDi(const Slot& slot) {
  std::string lettere;
  for (int k = 1; k <= slot.lunghezza; ++k) {
    const Casella cella = slot.Cella(k);
    lettere += LetteraCasella(cella.colonna, cella.riga);
  }
  return lettere;
}

}  // namespace telarium
