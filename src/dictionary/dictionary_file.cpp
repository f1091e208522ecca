#include "dictionary/dictionary_file.h"

#include "platform/text.h"

namespace telarium {
namespace {

using Intestazione = std::array<char, PrimaPosizione - 1>;

// The number in the field of the header that begins at a position.
std::int32_t Campo(const Intestazione& intestazione, int posizione) {
  return ValoreNumerico({intestazione.data() + posizione - 1, ByteCampo});
}

}  // namespace

SezioniDizionario LeggiSezioni(const FileDizionario& file) {
  Intestazione intestazione{};
  file.Leggi(1, intestazione.data(), intestazione.size());
  SezioniDizionario sezioni;
  for (int lunghezza = MinLunghezza; lunghezza <= MaxLunghezza; ++lunghezza) {
    const std::int32_t inizio = Campo(intestazione, PosizioneVoce(lunghezza));
    const std::int32_t fine = Campo(intestazione, PosizioneVoce(lunghezza) + ByteCampo);
    sezioni[static_cast<std::size_t>(lunghezza - MinLunghezza)] = {
        .inizio = inizio, .conta = (fine - inizio) / lunghezza};
  }
  return sezioni;
}

}  // namespace telarium
