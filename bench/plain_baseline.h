#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/dictionary.h"

// The plain way that the engine is measured against: for each scan open the file, then seek and
// read word by word, and compare letter by letter. Same results, nothing clever.
namespace telarium::plain {

/// Numbers, from 1, of the words of the dictionary that fit a pattern with blanks for free places;
/// an all-blank pattern takes no word with Q or H. The section table is the one that the
/// dictionary has read.
std::vector<int> FittingWords(const Dizionario& dictionary, std::string_view pattern);

/// Whether a word of the dictionary fits the pattern; stops at the first.
bool WordExists(const Dizionario& dictionary, std::string_view pattern);

std::string ReadWord(const Dizionario& dictionary, int number, int length);

/// The fill with every dead end accepted, of a grid of "*" and "." rows; draws come from `random`.
/// Gives the filled rows.
std::vector<std::string> Fill(const Dizionario& dictionary, std::vector<std::string> rows,
                              const std::function<double()>& random);

}  // namespace telarium::plain
