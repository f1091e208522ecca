#include "editor/update_check.h"

#include <algorithm>

#include "auxiliary/addresses.h"
#include "auxiliary/links.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"
#include "telarium_version.h"

namespace telarium {
namespace {

constexpr LimitiDiPrelievo Limiti{.tempo = std::chrono::seconds(2), .byte = 1u << 20};
constexpr std::string_view NostraVersione = TELARIUM_VERSION;  // "7.0.1"

// Major, minor and revision one after the other.
double NostroNumero() {
  std::string cifre(NostraVersione);
  std::erase(cifre, '.');
  return ValoreDecimale(cifre);
}

// The first three characters of the trimmed text with points between.
std::string VersioneNuova(std::string_view testo) {
  testo.remove_prefix(std::min(testo.find_first_not_of(' '), testo.size()));
  std::string versione;
  for (const char cifra : testo.substr(0, 3))
    versione += Unisci(versione.empty() ? "" : ".", cifra);
  return versione;
}

bool Offri(std::string_view testo) {
  return ChiUsa().MostraMessaggio(
             {.testo =
                  Unisci("Versione di Telarium installata sul PC in uso : ", NostraVersione,
                         "\r\nE' disponibile su Internet la nuova versione ", VersioneNuova(testo),
                         " di Telarium.\r\nSi desidera scaricala ed installarla adesso? "),
              .pulsanti = Pulsanti::SiNo}) == Risposta::Si;
}

}  // namespace

void ControllaAggiornamento() {
  const std::string& server = ValoreIndirizzo(Indirizzo::ServerAggiornamenti);
  if (server.empty()) return;
  auto testo = Sistema()
                   .Preleva(AUtf8(ConSchema(server) + "/telarium/telarium_update.txt"), Limiti, {})
                   .byte;
  if (!testo || testo->empty()) return;
  testo->pop_back();  // the last byte only ends the file
  if (ValoreDecimale(*testo) <= NostroNumero() || !Offri(*testo)) return;
  ApriIndirizzo(ConSchema(server) + "/telarium/");
  TerminaProgramma(Fine::Regolare);
}

}  // namespace telarium
