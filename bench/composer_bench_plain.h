#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "composer/composer.h"

namespace telarium {

/// The letters that a problem gives, by cell.
std::string GivenLetters(const Problema& problem);

/// The words that a slot may have beside letters that stand in its cells, best first.
std::vector<NumeroParola> FittingWords(const Problema& problem, int slot,
                                       const std::string& letters);

/// The plain way beside the composer: backtracking without propagation. The next slot is always the
/// one with most of its cells in earlier ones, its words come in an order by chance, and a slot
/// without words takes back the one before it. Same demands, but for wanted words and open slots.
/// `seconds` are of the thread's processor time; `passi` counts the words that were put in.
Riempimento FillPlainly(const Problema& problem, std::uint64_t seed, double seconds);

}  // namespace telarium
