#pragma once

#include <bitset>
#include <memory>

#include "clues/coverage.h"
#include "composer/vocabulary.h"
#include "laboratory/word_selection.h"
#include "model/laboratory_section.h"

// The words of a choice as the composer wants them.
namespace telarium {

/// Lengths of words, by number.
using Lunghezze = std::bitset<MaxLunghezzaVoce + 1>;

/// How welcome a word is to the composer, 0 to MaxPregio: the commoner the better, and, where clues
/// are preferred, one that has a clue before all that have none.
int PregioDi(int punteggio, bool definita, UsoDefinizioni uso);

/// What a crossword itself says of words, folded.
struct ParoleDiCruciverba {
  InsiemeDiParole proprie = {};  // the author's own words: they are words here
  InsiemeDiParole vietate = {};  // banned in this crossword
  bool operator==(const ParoleDiCruciverba&) const = default;
};
/// The words of its section; what stands there and is no word stands for nothing.
ParoleDiCruciverba ParoleDi(const Laboratorio& laboratorio);

/// The words of these lengths that a choice lets into a crossword: those of all layers that are not
/// banned and that the rules allow at least in some number, and the crossword's own. Where clues
/// are demanded words without one are left out; least scores are the problem's. Under rules that
/// take any two letters all pairs are words, and marked as own ones, since nothing is demanded of
/// them. Which words are akin follows from `scelta.ammetteForme`. `copertura` may be null: no word
/// has a clue then. Uses two threads for what is long.
std::shared_ptr<const Vocabolario> VocabolarioDi(const SceltaParole& scelta, const Lessico& lessico,
                                                 const Copertura* copertura,
                                                 const Lunghezze& lunghezze,
                                                 const ParoleDiCruciverba& delCruciverba);

/// A vocabulary with what it was made for, so that crosswords that differ in little share it.
struct VocabolarioPronto {
  std::shared_ptr<const Vocabolario> vocabolario;
  Lunghezze lunghezze;
  ParoleDiCruciverba delCruciverba;
};

}  // namespace telarium
