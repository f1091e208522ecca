#include "dictionary/word_pattern.h"

#include "platform/check.h"

namespace telarium {

ModelloParola::ModelloParola(std::string_view modello)
    : lunghezza_(static_cast<int>(modello.size())),
      secondo_(modello.size() - ByteConfronto(lunghezza_)),
      tuttoLibero_(modello.find_first_not_of(PostoLibero) == std::string_view::npos) {
  Verifica(LunghezzaAmmessa(lunghezza_), "ModelloParola: lunghezza fuori da 3 a 15");
  for (std::size_t m = 0; m < 2; ++m) {
    const std::string_view parte = modello.substr(m * secondo_, ByteConfronto(lunghezza_));
    for (std::size_t i = 0; i < parte.size(); ++i) {
      if (parte[i] == PostoLibero) continue;
      meta_[m].maschera[i] = '\xFF';
      meta_[m].valore[i] = parte[i];
    }
  }
}

}  // namespace telarium
