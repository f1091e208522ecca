#pragma once

#include <string>

#include "model/words.h"

// The lists of clues as paper and pages show them: the words of one direction by their numbers.
namespace telarium {

/// The clue of a word, or that many underscores to write on when it has none.
std::string DefinizioneOTrattini(const Slot& slot, std::size_t trattini);

/// Calls `visita` with the number and the clue, or its underscores, of each word of a direction, by
/// rows and in a row by columns.
template <class Visita>
void PerOgniDefinizione(int direzione, std::size_t trattini, Visita visita) {
  PerOgniParola(direzione, [&](const Slot& slot) {
    visita(int{NumeroCasella(slot.inizio.colonna, slot.inizio.riga)},
           DefinizioneOTrattini(slot, trattini));
  });
}

}  // namespace telarium
