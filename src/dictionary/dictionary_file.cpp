#include "dictionary/dictionary_file.h"

#include <fcntl.h>

#include "platform/text.h"

namespace telarium {
namespace {

using Intestazione = std::array<char, PrimaPosizione - 1>;

// The number in the field of the header that begins at a position.
std::int32_t Campo(const Intestazione& intestazione, int posizione) {
  return ValoreNumerico({intestazione.data() + posizione - 1, ByteCampo});
}

}  // namespace

FileDizionario::FileDizionario(const Percorso& nome)
    // A pipe in the place of a dictionary must not make the program wait for it.
    : descrittore_(::open(nome.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
  if (!Aperto()) errore_ = {errno, std::generic_category()};
  if (!Aperto() || FileOrdinario(nome)) return;
  errore_ = ErroreNonUnFile();
  descrittore_ = {};
}

std::size_t FileDizionario::Leggi(std::int64_t posizione, char* destinazione,
                                  std::size_t byte) const {
  if (!Aperto() || posizione < 1) return 0;
  std::size_t letti = 0;
  while (letti < byte) {
    const ssize_t n = ::pread(descrittore_.Numero(), destinazione + letti, byte - letti,
                              posizione - 1 + static_cast<std::int64_t>(letti));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) guasto_ = true;
    if (n <= 0) break;
    letti += static_cast<std::size_t>(n);
  }
  return letti;
}

std::array<SezioneDizionario, MaxLunghezza - MinLunghezza + 1> LeggiSezioni(
    const FileDizionario& file) {
  Intestazione intestazione{};
  file.Leggi(1, intestazione.data(), intestazione.size());
  std::array<SezioneDizionario, MaxLunghezza - MinLunghezza + 1> sezioni;
  for (int lunghezza = MinLunghezza; lunghezza <= MaxLunghezza; ++lunghezza) {
    const std::int32_t inizio = Campo(intestazione, PosizioneVoce(lunghezza));
    const std::int32_t fine = Campo(intestazione, PosizioneVoce(lunghezza) + ByteCampo);
    sezioni[static_cast<std::size_t>(lunghezza - MinLunghezza)] = {
        .inizio = inizio, .conta = (fine - inizio) / lunghezza};
  }
  return sezioni;
}

}  // namespace telarium
