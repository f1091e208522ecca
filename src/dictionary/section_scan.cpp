#include "dictionary/section_scan.h"

#include <algorithm>

namespace telarium {

ScansioneSezione::ScansioneSezione(const Dizionario& dizionario, int lunghezza)
    : file_(dizionario.PercorsoDizionario()),
      lunghezza_(lunghezza),
      inizio_(dizionario.OffsetLunghezza(lunghezza - MinLunghezza)),
      ultimo_(dizionario.UltimoNumero(lunghezza)) {}

bool ScansioneSezione::Prossimo(BloccoDiParole& blocco) {
  if (prossimo_ > ultimo_) return false;
  const int perBlocco = static_cast<int>(ByteBlocco) / lunghezza_;
  const int volute = std::min(perBlocco, ultimo_ - prossimo_ + 1);
  const std::size_t letti =
      file_.Leggi(inizio_ + std::int64_t{prossimo_ - 1} * lunghezza_, blocco_,
                  static_cast<std::size_t>(volute) * static_cast<std::size_t>(lunghezza_));
  blocco = {.inizio = blocco_,
            .lunghezza = lunghezza_,
            .primoNumero = prossimo_,
            .quante = static_cast<int>(letti) / lunghezza_};
  // Fewer words than asked for: the file ends here, and so does the scan.
  prossimo_ = blocco.quante == volute ? prossimo_ + volute : ultimo_ + 1;
  return blocco.quante > 0;
}

}  // namespace telarium
