#pragma once

#include <string>
#include <vector>

#include "composer/part.h"

// Of slots that cannot be filled together, one is known to be needed for that as soon as the others
// are filled. Such a fill tells more: another word in the slot that was left out may break a single
// one of its crossings, and so is a fill without that one. Each slot found in this way saves a
// search. After A. Belov and J. Marques-Silva, Accelerating MUS extraction with recursive model
// rotation (2011).
namespace telarium {

/// The slots of `insieme`, which is impossible with these wanted words, that can be filled when one
/// of them is left out, as far as fills that are near to `lettere` show it. Those are by cell of
/// the whole problem and fill the set without `tolto`. `tolto` itself is not among the result.
std::vector<int> AltriNecessari(const Problema& problema, const std::vector<int>& insieme,
                                const std::vector<std::string>& volute, int tolto,
                                const std::string& lettere);

}  // namespace telarium
