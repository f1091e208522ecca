#include "clues/encyclopedia.h"

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {

ErroreEnciclopedia::ErroreEnciclopedia(std::string_view perche, Specie specie)
    : descrizione_(Unisci("Enciclopedia ", NomeEnciclopedia, ": ", perche, '.')), specie_(specie) {}

bool Enciclopedia::ContieneDefinizione(std::string_view definizione) {
  const auto facili = LeggiFacili();
  return facili && Maiuscole(*facili).find(Maiuscole(definizione)) != std::string::npos;
}

void VerificaCercabile(std::string_view parola) {
  if (parola.find('\'') == std::string_view::npos) return;
  throw ErroreEnciclopedia(
      Unisci("la parola \"", parola, "\" contiene un apostrofo e non si può cercare"_cp));
}

}  // namespace telarium
