#include "model/state.h"

#include "model/documento.h"
#include "platform/platform.h"

namespace telarium {

std::int16_t ModoGriglia = 0;
std::int16_t PuntatoreMouse = 0;
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
  PuntatoreMouse = 0;
  CartellaProgramma.clear();
  CartellaIstantanea.clear();
  for (auto* uno = primoAzzeramento; uno; uno = uno->prossimo_)
    uno->azzera_();
}

void ImpostaPuntatoreMouse(int forma) {
  PuntatoreMouse = static_cast<std::int16_t>(forma);
  ChiUsa().FormaPuntatore(forma);
}

}  // namespace telarium
