#include "clues/clue_list.h"

#include <algorithm>

#include "clues/import.h"
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

bool Lettera(char carattere) {
  return Maiuscola(carattere) != carattere || (carattere >= 'A' && carattere <= 'Z') ||
         static_cast<unsigned char>(carattere) >= 0xC0;
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

bool ContieneRisposta(std::string_view definizione, std::string_view parola) {
  for (std::size_t i = 0; i < definizione.size();) {
    std::size_t fine = i;
    while (fine < definizione.size() && Lettera(definizione[fine]))
      ++fine;
    const auto una = PiegaParola(AUtf8(definizione.substr(i, fine - i)));
    if (una && *una == parola) return true;
    i = fine + 1;
  }
  return false;
}

}  // namespace telarium
