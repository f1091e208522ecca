#include "dictionary/word_list.h"

#include <gtest/gtest.h>

namespace telarium {
namespace {

using Words = std::vector<std::string>;

// All words that a list gives, the short ones first.
Words WordsOf(std::string_view utf8) {
  ListeDiParole lists;
  AggiungiLista(utf8, lists);
  Words words;
  for (const auto& list : lists) {
    words.insert(words.end(), list.begin(), list.end());
  }
  return words;
}

TEST(WordListTest, LineBecomesAWordInPlainCapitals) {
  // clang-format off
  constexpr std::pair<std::string_view, std::string_view> rows[] = {
      {"casa", "CASA"}, {"àèéìòùÀÈÉÌÒÙ", "AEEIOUAEEIOU"}, {"çâêëîïôûÿÇŸ", "CAEEIIOUYCY"},
      {"åãñõøšžłđ", "AANOOSZLD"}, {"ÀÝÿĀžſ", "AYYAZS"}, {"cœurÆßĳŒ", "COEURAESSIJOE"},
      {"perche\u0301C\u0327A", "PERCHECA"}, {" \t casa\t ", ""},
      // At the limits of the length, which is counted after folding.
      {"re", ""}, {"œu", "OEU"}, {"\u0301\u0301\u0301", ""}, {"", ""},
      {"sovrapposizionì", "SOVRAPPOSIZIONI"}, {"sovrapposizionia", ""}, {"sovrapposizionœ", ""},
      // Other characters.
      {"þorn", ""}, {"ðath", ""}, {"a×bcd", ""}, {"αβγδ", ""}, {"l'ape", ""}, {"due parole", ""},
      {"mp3", ""}, {"casa\u00A0", ""}, {{"cas\0a", 5}, ""},
      // No UTF-8: a single byte, a cut sequence, an overlong one, a surrogate.
      {"cas\xE0", ""}, {"casa\xC3", ""}, {"\xC1\x81sso", ""}, {"cas\xED\xA0\x80", ""},
  };
  // clang-format on
  for (const auto& [line, word] : rows) {
    EXPECT_EQ(WordsOf(line), word.empty() ? Words{} : Words{std::string(word)}) << line;
  }
}

TEST(WordListTest, LinesEndInAnyWayAndAMarkMayComeFirst) {
  EXPECT_EQ(WordsOf("\xEF\xBB\xBF"
                    "ape\r\nora\n\r\nuva\rmai"),
            (Words{"APE", "ORA", "UVA", "MAI"}));
  EXPECT_EQ(WordsOf("ape\n\xEF\xBB\xBFora\n"), Words{"APE"}) << "inside it is no mark";
  EXPECT_EQ(WordsOf(""), Words{});
}

TEST(WordListTest, SortedListsHoldEachWordOnce) {
  ListeDiParole lists;
  AggiungiLista("uva\nCasa\nape\ncàsa\nUVA\nàbaco\n", lists);
  AggiungiLista("ape\n", lists);
  OrdinaListe(lists);
  EXPECT_EQ(lists[0], (Words{"APE", "UVA"}));
  EXPECT_EQ(lists[1], Words{"CASA"});
  EXPECT_EQ(lists[2], Words{"ABACO"});
}

}  // namespace
}  // namespace telarium
