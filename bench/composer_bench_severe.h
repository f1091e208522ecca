#pragma once

#include "clues/coverage.h"
#include "composer_bench_grids.h"

namespace telarium {

/// Which words have a clue in the encyclopedia of the build.
const Copertura& Coverage();

/// The problem that `telar componi` makes of an empty pattern under its initial rules when every
/// entry is to have a clue.
Problema SevereProblem(const Pattern& pattern);

}  // namespace telarium
