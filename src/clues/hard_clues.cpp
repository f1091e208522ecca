#include "clues/hard_clues.h"

#include <algorithm>

#include "clues/clue_family.h"
#include "platform/text.h"

namespace telarium {
namespace {

bool Contiene(const std::string& famiglia, std::string_view definizione) {
  const auto definizioni = DefinizioniDellaFamiglia(famiglia);
  return std::any_of(definizioni.begin(), definizioni.end(), [&](std::string_view una) {
    return SenzaSpazi(una) == SenzaSpazi(definizione);
  });
}

}  // namespace

bool DefinizioniDifficili::Cerca(std::string_view parola, std::string_view definizione) {
  if (!enciclopedia_) enciclopedia_ = ApriEnciclopedia();
  if (!enciclopedia_->CercaParola(parola)) return false;
  if (!Contiene(enciclopedia_->LeggiDifficili().value_or(""), definizione)) return false;
  return !Contiene(enciclopedia_->LeggiFacili().value_or(""), definizione);
}

bool DefinizioniDifficili::Ha(std::string_view parola, std::string_view definizione) {
  if (illeggibile_) return false;
  try {
    return Cerca(parola, definizione);
  } catch (const ErroreEnciclopedia&) {
    illeggibile_ = true;
    return false;
  }
}

}  // namespace telarium
