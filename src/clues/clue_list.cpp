#include "clues/clue_list.h"

#include <algorithm>

#include "clues/merging.h"
#include "dictionary/word_list.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Takes what stands before the next TAB off a line; all of it when there is none.
std::string_view PrendiCampo(std::string_view& riga) {
  const std::size_t fine = std::min(riga.find('\t'), riga.size());
  const std::string_view campo = riga.substr(0, fine);
  riga.remove_prefix(std::min(fine + 1, riga.size()));
  return campo;
}

// A piece of a clue without its accents; none for what is no letters.
std::optional<std::string> Piegata(std::string_view testo) {
  return PiegaParola(AUtf8(testo));
}

}  // namespace

std::optional<VoceDiLista> InterpretaVoce(std::string_view rigaUtf8) {
  const auto riga = DaUtf8Esatto(rigaUtf8);
  if (!riga) return std::nullopt;
  std::string_view resto = *riga;
  const std::string_view parola = SenzaSpazi(PrendiCampo(resto));
  const std::string_view famiglia = PrendiCampo(resto);
  const std::string_view definizione = SenzaSpazi(resto);
  if (famiglia != "F" && famiglia != "D") return std::nullopt;
  if (definizione.find_first_of("\t\r\n") != std::string_view::npos) return std::nullopt;
  if (!CoppiaAmmessa(parola, definizione)) return std::nullopt;
  return VoceDiLista{Maiuscole(parola), famiglia == "D", std::string(definizione)};
}

EsitoLista AggiungiVoci(std::string_view utf8, std::vector<VoceDiLista>& voci) {
  EsitoLista esito;
  LettoreDiRighe righe(SenzaSegnoUtf8(utf8));
  int numero = 0;
  for (std::string_view riga; righe.Prossima(riga);) {
    ++numero;
    if (SenzaSpazi(riga).empty()) continue;
    if (auto voce = InterpretaVoce(riga)) {
      voci.push_back(std::move(*voce));
    } else if (esito.tralasciate++ == 0) {
      esito.primaTralasciata = numero;
    }
  }
  return esito;
}

bool ContieneRisposta(std::string_view definizione, std::string_view parola) {
  const auto risposta = Piegata(parola);
  const auto lettera = [&](std::size_t i) { return Piegata(definizione.substr(i, 1)).has_value(); };
  for (std::size_t i = 0; i < definizione.size(); ++i) {
    const std::size_t inizio = i;
    while (i < definizione.size() && lettera(i))
      ++i;
    if (i > inizio && Piegata(definizione.substr(inizio, i - inizio)) == risposta) return true;
  }
  return false;
}

}  // namespace telarium
