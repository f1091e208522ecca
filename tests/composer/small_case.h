#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "composer/problem.h"

namespace telarium {

/// A problem that was drawn, with its words as they were drawn: whoever judges the composer reads
/// these, not the vocabulary.
struct SmallCase {
  struct Word {
    int score = 0;
    bool clued = true;
    bool own = false;
    Genie kinds = 0;
  };

  bool Akin(const std::string& one, const std::string& other) const {
    return kinship.contains({one, other});
  }

  std::map<std::string, Word> words;
  std::set<std::pair<std::string, std::string>> kinship;  // both ways round
  std::vector<int> readingOrder;                          // the cells of the problem
  Problema problem;
};

/// What a case is drawn like.
struct CaseShape {
  int columns = 4;
  int rows = 4;
  int black = 0;        // per cent
  int letters = 4;      // of the alphabet
  double plenty = 1;    // 1: as many words as leave about one fill in the mean
  bool demands = true;  // given letters, least scores, clues, kinds, kinship, open slots
};

/// A shape of 2x2 to 6x6 cells that is as often impossible as not.
CaseShape DrawShape(std::mt19937_64& chance);
SmallCase DrawCase(const CaseShape& shape, std::mt19937_64& chance);
/// Both, from a seed.
SmallCase DrawCase(std::uint64_t seed);

}  // namespace telarium
