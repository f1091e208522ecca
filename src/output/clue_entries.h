#pragma once

#include <string>

#include "model/words.h"

// The lists of clues as paper and pages show them: the words of one direction by their numbers.
namespace telarium {

/// The clue of a word, or that many underscores to write on when it has none.
std::string DefinizioneOTrattini(const Slot& slot, std::size_t trattini);

}  // namespace telarium
