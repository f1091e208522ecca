#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "clues/clue_family.h"
#include "lexicon/composition.h"

namespace telarium {

/// What it counts for a word that it has a clue.
enum class UsoDefinizioni { No, Preferite, Obbligatorie };

/// What a person chooses about the words of a crossword, in the console or in a window.
struct SceltaParole {
  std::vector<Percorso> lessici = {LessicoIniziale};  // see ComponiLessico
  Regolamento regole = *RegolamentoDiNome(RegolamentoIniziale);
  std::array<int, MaxLunghezzaVoce + 1> livelli{};  // the least score, by length
  UsoDefinizioni definizioni = UsoDefinizioni::Preferite;
  QualiDefinizioni quali = QualiDefinizioni::Tutte;
  InsiemeDiParole vietate;  // folded, as the next ones
  InsiemeDiParole ammesse;
  bool ammetteForme = false;  // two forms of one lemma may stand together
};

/// The lexicon of a choice, its bans and admissions too. None when a layer cannot be
/// had; `messaggio` as that of ComponiLessico.
std::optional<Lessico> LessicoDi(const SceltaParole& scelta, const LuoghiLessico& luoghi,
                                 std::string& messaggio);

}  // namespace telarium
