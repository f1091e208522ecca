#include "dictionary/masked_search.h"

#include "dictionary/word_pattern.h"
#include "platform/text.h"

namespace telarium {

EsitoRicerca CercaParole(const Dizionario& dizionario, std::string_view maschera,
                         const std::function<void(std::string_view)>& accogli,
                         const std::function<void(int, int)>& avanzamento) {
  const ModelloParola modello(maschera);
  const int conto = dizionario.UltimoNumero(modello.Lunghezza());
  ScansioneSezione scansione(dizionario, modello.Lunghezza());
  EsitoRicerca esito;
  BloccoDiParole blocco;
  while (scansione.Prossimo(blocco)) {
    modello.PerOgniAdatta(blocco, [&](int i) {
      ++esito.trovate;
      accogli({blocco.Parola(i), maschera.size()});
      return true;
    });
    if (avanzamento) avanzamento(blocco.primoNumero + blocco.quante - 1, conto);
  }
  esito.dizionarioLetto = scansione.Leggibile();
  return esito;
}

std::string TestoTrovate(int trovate) {
  return Unisci("Trov.: ", trovate);
}

}  // namespace telarium
