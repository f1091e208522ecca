#include "dictionary/masked_search.h"

#include "dictionary/dictionary_writer.h"
#include "support/numbered_words.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using Words = std::vector<std::string>;

class MaskedSearchTest : public TelariumTest {
 protected:
  Words Search(std::string_view mask) {
    Words found;
    const EsitoRicerca outcome =
        CercaParole(dictionary, mask, [&](std::string_view word) { found.emplace_back(word); });
    EXPECT_TRUE(outcome.dizionarioLetto);
    EXPECT_EQ(outcome.trovate, static_cast<int>(found.size()));
    return found;
  }
};

TEST_F(MaskedSearchTest, ListsTheFittingWordsInFileOrder) {
  ListeDiParole lists;
  lists[1] = {"PALA", "MULA", "HARD", "MELA", "MALE", "mola", "QUAL", "MALA"};
  ASSERT_EQ(ScriviDizionario(dictionary.PercorsoDizionario(), lists).errore, "");
  ASSERT_TRUE(ApriDizionario(dictionary));
  EXPECT_EQ(Search("M LA"), (Words{"MULA", "MELA", "MALA"}));
  EXPECT_EQ(Search("    "), lists[1]) << "words with Q and H too";
  EXPECT_EQ(Search("MELA"), Words{"MELA"});
  EXPECT_EQ(Search("MELO"), Words{});
  EXPECT_EQ(Search("   m"), Words{});
  EXPECT_EQ(Search("     "), Words{}) << "a section without words";
}

TEST_F(MaskedSearchTest, EachPlaceOfEachLengthIsCompared) {
  Words words;
  const auto plain = [](int length) { return std::string(static_cast<std::size_t>(length), 'A'); };
  const auto withB = [&](int length, int place) {
    return plain(length).replace(static_cast<std::size_t>(place), 1, "B");
  };
  for (int length = 3; length <= 15; ++length) {
    words.push_back(plain(length));
    for (int k = 0; k < length; ++k) {
      words.push_back(withB(length, k));
    }
  }
  OpenDictionary(words);
  for (int length = 3; length <= 15; ++length) {
    for (int k = 0; k < length; ++k) {
      std::string mask(static_cast<std::size_t>(length), ' ');
      mask[static_cast<std::size_t>(k)] = 'B';
      EXPECT_EQ(Search(mask), Words{withB(length, k)});
      EXPECT_EQ(Search(withB(length, k)), Words{withB(length, k)});
    }
  }
}

TEST_F(MaskedSearchTest, AFreeMaskGoesThroughAFullSection) {
  OpenDictionary(NumberedWords(32'767, 15));
  int last = 0;
  const auto progress = [&](int number, int count) {
    EXPECT_GT(number, last);
    EXPECT_EQ(count, 32'767);
    last = number;
  };
  EXPECT_EQ(CercaParole(
                dictionary, std::string(15, ' '), [](std::string_view) {}, progress)
                .trovate,
            32'767);
  EXPECT_EQ(last, 32'767);
}

TEST_F(MaskedSearchTest, ClosingTextHasABlankForTheSign) {
  EXPECT_EQ(TestoTrovate(0), "Trov.: 0");
}

}  // namespace
}  // namespace telarium
