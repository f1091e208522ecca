#include "clues/clue_family.h"

#include <algorithm>

#include "model/state.h"
#include "platform/text.h"

namespace telarium {

Tabella<std::string, Indici<1, MaxDefinizioni>> ElencoDefinizioni("ElencoDefinizioni");

namespace {

void SvuotaElenco() {
  for (int i = 1; i <= MaxDefinizioni && !ElencoDefinizioni(i).empty(); ++i)
    ElencoDefinizioni(i).clear();
}

const AzzeramentoDiSottosistema azzeramento(SvuotaElenco);

// Calls `visita` with each part in order.
template <class Visita>
void PerOgniParte(std::string_view famiglia, Visita visita) {
  for (;;) {
    const std::size_t fine = famiglia.find(SeparatoreDefinizioni);
    visita(famiglia.substr(0, fine));
    if (fine == std::string_view::npos) return;
    famiglia.remove_prefix(fine + SeparatoreDefinizioni.size());
  }
}

bool Vuota(std::string_view parte) {
  return SenzaSpazi(parte).empty();
}

}  // namespace

std::string ConSeparatori(std::string_view testo) {
  std::string famiglia;
  famiglia.reserve(testo.size());
  LettoreDiRighe righe(testo);
  for (std::string_view riga; righe.Prossima(riga);) {
    famiglia += riga;
    // The last line may go without an end.
    const char* dopo = riga.data() + riga.size();
    if (dopo != testo.data() + testo.size()) famiglia += SeparatoreDefinizioni;
  }
  return famiglia;
}

std::vector<std::string_view> PartiDellaFamiglia(std::string_view famiglia) {
  std::vector<std::string_view> parti;
  PerOgniParte(famiglia, [&](std::string_view parte) { parti.push_back(parte); });
  return parti;
}

std::vector<std::string_view> DefinizioniDellaFamiglia(std::string_view famiglia) {
  std::vector<std::string_view> definizioni = PartiDellaFamiglia(famiglia);
  std::erase_if(definizioni, Vuota);
  return definizioni;
}

int ContaDefinizioni(std::string_view famiglia) {
  int quante = 0;
  PerOgniParte(famiglia, [&](std::string_view parte) { quante += !Vuota(parte); });
  return quante;
}

void spezzatesto(std::string& testo) {
  SvuotaElenco();
  int quante = 0;
  for (const std::string_view definizione : DefinizioniDellaFamiglia(testo)) {
    if (quante == MaxDefinizioni) break;
    ElencoDefinizioni(++quante) = definizione;
  }
  testo = std::to_string(quante);
}

}  // namespace telarium
