#pragma once

#include <string>
#include <vector>

namespace telarium {

/// The first words of a length in alphabetical order, of letters without Q and H ("AAAA", "AAAB").
/// There are enough of 4 letters and more to overfill a section.
inline std::vector<std::string> NumberedWords(int count, int length) {
  constexpr std::string_view letters = "ABCDEFGILMNOPRSTUVZ";
  std::vector<std::string> words(static_cast<std::size_t>(count));
  for (std::size_t n = 0; n < words.size(); ++n) {
    std::size_t rest = n;
    for (int k = 0; k < length; ++k, rest /= letters.size()) {
      words[n].insert(words[n].begin(), letters[rest % letters.size()]);
    }
  }
  return words;
}

}  // namespace telarium
