#include "model/pointer.h"

#include "model/state.h"
#include "platform/platform.h"

namespace telarium {
namespace {

Strumento strumentoAttivo = Strumento::Nessuno;
std::int16_t puntatore = PuntatoreFreccia;

const AzzeramentoDiSottosistema azzeramento([] {
  strumentoAttivo = Strumento::Nessuno;
  puntatore = PuntatoreFreccia;
});

int FormaDello(Strumento strumento) {
  switch (strumento) {
    case Strumento::CasellaNera:
      return PuntatoreCasellaNera;
    case Strumento::CasellaBianca:
      return PuntatoreCasellaBianca;
    default:
      return PuntatoreFreccia;
  }
}

}  // namespace

const std::int16_t& PuntatoreMouse = puntatore;

Strumento StrumentoAttivo() {
  return strumentoAttivo;
}

void PrendiStrumento(Strumento strumento) {
  ImpostaPuntatoreMouse(FormaDello(strumento));
  strumentoAttivo = strumento;
}

void ImpostaPuntatoreMouse(int forma) {
  strumentoAttivo = Strumento::Nessuno;
  puntatore = static_cast<std::int16_t>(forma);
  ChiUsa().FormaPuntatore(forma);
}

FormaDelPuntatore::FormaDelPuntatore(int forma) {
  ImpostaPuntatoreMouse(forma);
}

FormaDelPuntatore::~FormaDelPuntatore() {
  ImpostaPuntatoreMouse(PuntatoreFreccia);
}

Clessidra::Clessidra() : FormaDelPuntatore(PuntatoreClessidra) {}

}  // namespace telarium
