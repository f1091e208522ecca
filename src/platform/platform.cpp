#include "platform/platform.h"

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

void Avvisa(std::string_view testo, std::string_view titolo, Icona icona) {
  ChiUsa().MostraMessaggio(
      {.testo = std::string(testo), .titolo = std::string(titolo), .icona = icona});
}

}  // namespace telarium
