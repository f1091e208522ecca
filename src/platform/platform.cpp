#include "platform/platform.h"

#include <utility>

#include "platform/check.h"

namespace telarium {
namespace {

Piattaforma* corrente = nullptr;

}  // namespace

void ImpostaPiattaforma(Piattaforma* piattaforma) {
  corrente = piattaforma;
}

Piattaforma& LaPiattaforma() {
  Verifica(corrente != nullptr, "nessuna piattaforma impostata");
  return *corrente;
}

void TerminaProgramma() {
  LaPiattaforma().Termina();
  ErroreDiProgrammazione("la piattaforma non ha terminato il programma");
}

void Avvisa(std::string testo, std::string titolo, Icona icona) {
  ChiUsa().MostraMessaggio(
      {.testo = std::move(testo), .titolo = std::move(titolo), .icona = icona});
}

}  // namespace telarium
