#include "platform/platform.h"

#include "platform/check.h"
#include "platform/text.h"

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

void TerminaProgramma(Fine fine) {
  LaPiattaforma().Termina(fine);
  ErroreDiProgrammazione("la piattaforma non ha terminato il programma");
}

std::string DataDiOggi() {
  const auto oggi = Sistema().Oggi();
  return Unisci(DueCifre(static_cast<int>(unsigned{oggi.day()})), '-',
                DueCifre(static_cast<int>(unsigned{oggi.month()})), '-',
                static_cast<int>(oggi.year()));
}

void Avvisa(std::string_view testo, std::string_view titolo, Icona icona) {
  ChiUsa().MostraMessaggio(
      {.testo = std::string(testo), .titolo = std::string(titolo), .icona = icona});
}

}  // namespace telarium
