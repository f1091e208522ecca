#pragma once

#include <memory>

#include "composer/vocabulary.h"

// The words that the composer is measured with: those of the list kept for it, in its order.
namespace telarium {

/// How welcome a word of the list is falls evenly with its rank in its length. In the best third of
/// its length is what has more than this.
inline constexpr int BestThird = MaxPregio * 2 / 3;

struct WordChoice {
  int cap = 0;         // so many of the most common words, as many of every length; 0: all
  bool clued = false;  // only words with a clue, and the kit's entries of two letters
};

std::shared_ptr<const Vocabolario> ListVocabulary(const WordChoice& choice);

}  // namespace telarium
