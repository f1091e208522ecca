#include "laboratory/word_selection.h"

namespace telarium {

std::optional<Lessico> LessicoDi(const SceltaParole& scelta, const LuoghiLessico& luoghi,
                                 std::string& messaggio) {
  auto lessico = ComponiLessico(scelta.lessici, luoghi, messaggio);
  if (!lessico) return std::nullopt;
  for (const std::string& parola : scelta.vietate)
    lessico->Vieta(parola);
  for (const std::string& parola : scelta.ammesse)
    lessico->Ammetti(parola);
  return lessico;
}

}  // namespace telarium
