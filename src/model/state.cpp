#include "model/state.h"

#include "model/documento.h"

namespace telarium {

std::int16_t ModoGriglia = 0;
Percorso CartellaProgramma;
Percorso CartellaIstantanea;

namespace {

constinit const AzzeramentoDiSottosistema* primoAzzeramento = nullptr;

}  // namespace

AzzeramentoDiSottosistema::AzzeramentoDiSottosistema(void (*azzera)())
    : azzera_(azzera), prossimo_(primoAzzeramento) {
  primoAzzeramento = this;
}

Percorso PercorsoIstantanea() {
  return (CartellaIstantanea.empty() ? CartellaProgramma : CartellaIstantanea) / NomeIstantanea;
}

void AzzeraStato() {
  IlDocumento().Azzera();
  ModoGriglia = 0;
  CartellaProgramma.clear();
  CartellaIstantanea.clear();
  for (auto* uno = primoAzzeramento; uno; uno = uno->prossimo_)
    uno->azzera_();
}

}  // namespace telarium
