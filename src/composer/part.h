#pragma once

#include <string>
#include <vector>

#include "composer/problem.h"

// A problem cut down to some of its slots. It asks less than the whole, so that a part which is
// impossible proves the whole impossible.
namespace telarium {

/// The part of a problem that is about these slots, in their order, and these wanted words. Its
/// cells are theirs, numbered anew in the order in which they are met: one whose other slot is left
/// out is free within its letters. Words that stand elsewhere, kinds and kinship hold as before,
/// and wanted words that are left out still need no clue.
Problema ParteDi(const Problema& problema, const std::vector<int>& slot,
                 std::vector<std::string> volute = {});

/// The letters of an answer to that part at their places in the whole; SenzaLettera in the other
/// cells.
std::string NelTutto(const Problema& problema, const std::vector<int>& slot,
                     const std::string& lettereDellaParte);

/// The other way: an answer to the whole as one to that part.
std::string NellaParte(const Problema& problema, const std::vector<int>& slot,
                       const std::string& lettere);

}  // namespace telarium
