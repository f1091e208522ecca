#pragma once

#include <memory>
#include <string>
#include <vector>

#include "composer/problem.h"

// The grids that the composer is measured on.
namespace telarium {

/// Rows of a pattern, top first: '*' black, '.' white.
using Pattern = std::vector<std::string>;

inline constexpr int NumModels = 12;

/// A pattern of bench/patterns by its name, "model1" to "model12" of the program's model file, or
/// the file of that path. One that is not there ends the run.
Pattern PatternNamed(const std::string& name);

std::string ModelName(int number);

/// The problem of filling a pattern from a vocabulary. Runs of a length of which it has no word are
/// no slots: their cells are free.
Problema ProblemOf(const Pattern& pattern, std::shared_ptr<const Vocabolario> vocabulary);

}  // namespace telarium
