#include "dictionary/open_dictionary.h"
#include "dictionary/section_scan.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using namespace std::string_literals;
using Words = std::vector<std::string>;

// The image of a file: a table with the 16 bytes of these entries, by word length, then the words.
std::string Image(const std::vector<std::pair<int, std::string>>& entries, const char* words) {
  std::string image(439, '\0');
  for (const auto& [length, fields] : entries) {
    image.replace(152 + 16 * static_cast<std::size_t>(length), 16, fields);
  }
  return image + words;
}

class DictionaryTest : public TelariumTest {
 protected:
  const std::string small =
      Image({{3, "     440     446"}, {5, "     446     451"}, {15, "     451     481"}},
            "APEORACARTASOVRAPPOSIZIONIIRREPARABILMENT");

  void OpenBytes(std::string_view bytes) {
    WriteFile("LessicoItaliano.dat", bytes);
    ASSERT_TRUE(ApriDizionario(dictionary));
  }

  // The words of a section as a scan gives them; their numbers must rise from 1 without a gap.
  Words Scan(int length) {
    Words words;
    ScansioneSezione scan(dictionary, length);
    BloccoDiParole block;
    while (scan.Prossimo(block)) {
      EXPECT_EQ(block.primoNumero, static_cast<int>(words.size()) + 1);
      for (int i = 0; i < block.quante; ++i) {
        words.emplace_back(block.Parola(i), static_cast<std::size_t>(length));
      }
    }
    return words;
  }
};

TEST_F(DictionaryTest, TableIsNeverTrusted) {
  struct Row {
    const char* name;
    const char* fields;
    std::int32_t start, count;
    Words scanned;
    std::string firstWord;
  };
  const Words all = {"APE", "ORA", "UVA"};
  const Row rows[] = {
      {"as it should be", "     440     449", 440, 3, all, "APE"},
      {"end past the file", "     440     740", 440, 100, all, "APE"},
      {"start past the file", "    5000    5300", 5000, 100, {}, "   "},
      {"all the digits there is room for", "9999990099999999", 99999900, 33, {}, "   "},
      {"start in the header", "     437     446", 437, 3, {"\0\0\0"s, "APE", "ORA"}, "\0\0\0"s},
      {"last word cut", "     441     450", 441, 3, {"PEO", "RAU"}, "PEO"},
      {"only word cut", "     447     450", 447, 1, {}, "VA "},
      {"start 0", "       0      30", 0, 10, {}, "   "},
      {"start blank", "              30", 0, 10, {}, "   "},
      {"end before start", "     446     440", 446, -2, {}, "UVA"},
      {"no whole word", "     440     442", 440, 0, {}, "APE"},
      {"32767 words", "     440   98741", 440, 32767, all, "APE"},
      {"32768 words", "     440   98744", 440, 32768, {}, "APE"},
      {"40000 words", "     440  120440", 440, 40000, {}, "APE"},
      {"65537 words", "     440  197051", 440, 65537, {"APE"}, "APE"},
      {"65533 words back", "  197039     440", 197039, -65533, {}, "   "},
      {"garbage", "ABCDEFGH-440  x9", 0, 0, {}, "   "},
      {"garbage behind digits", "440.9XYZ  449e99", 440, 3, all, "APE"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    OpenBytes(Image({{3, row.fields}}, "APEORAUVA"));
    EXPECT_EQ(dictionary.OffsetLunghezza(0), row.start);
    EXPECT_EQ(dictionary.ContaLunghezza(0), row.count);
    EXPECT_EQ(Scan(3), row.scanned);
    EXPECT_EQ(dictionary.LeggiParola(1, 3), row.firstWord);
  }
}

TEST_F(DictionaryTest, FileCutAnywhereGivesTheWholeWordsBeforeTheCut) {
  for (std::size_t size = 0; size <= small.size(); ++size) {
    SCOPED_TRACE(size);
    OpenBytes(small.substr(0, size));
    EXPECT_EQ(Scan(3), size < 442 ? Words{} : size < 445 ? Words{"APE"} : (Words{"APE", "ORA"}));
    EXPECT_EQ(Scan(4), Words{});
    EXPECT_EQ(Scan(5), size < 450 ? Words{} : Words{"CARTA"});
    EXPECT_EQ(Scan(15).size(), size < 465 ? 0u : size < 480 ? 1u : 2u);
    for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
      for (const std::int16_t number : {-32768, 0, 1, 2, 32767}) {
        EXPECT_EQ(dictionary.LeggiParola(number, length).size(), static_cast<std::size_t>(length));
      }
    }
  }
  EXPECT_EQ(dictionary.LeggiParola(2, 15), "IRREPARABILMENT");
}

TEST_F(DictionaryTest, IsTheItalianOneUntilItIsNamed) {
  EXPECT_EQ(dictionary.NomeDizionario(), "LessicoItaliano.dat");
  EXPECT_EQ(dictionary.LinguaDizionario(), 1);
}

TEST_F(DictionaryTest, MissingFileOrFolderInItsPlaceEndsTheProgram) {
  dictionary.Nomina("Mio.priv", 1);
  EXPECT_THROW(ApriDizionario(dictionary), ProgramFailed);
  std::filesystem::create_directory(InFolder("Mio.priv"));
  EXPECT_THROW(ApriDizionario(dictionary), ProgramFailed);
  const std::string message = "Errore fatale! non trovato file di vocabolario: Mio.priv";
  EXPECT_EQ(user.TakeTexts(), (Words{message, message}));
  // The case of the name does not count.
  WriteFile("mIO.PRIV", small);
  ASSERT_TRUE(ApriDizionario(dictionary));
  EXPECT_EQ(Scan(5), Words{"CARTA"});
  EXPECT_EQ(dictionary.LeggiParola(2, 3), "ORA");
}

TEST_F(DictionaryTest, UnreadableFileIsToldAndCountsAsEmpty) {
  OpenBytes(small);
  dictionary.Nomina("Anello.priv", 1);
  std::filesystem::create_symlink(dictionary.NomeDizionario(), dictionary.PercorsoDizionario());
  EXPECT_FALSE(ApriDizionario(dictionary));
  EXPECT_EQ(user.TakeTexts(),
            Words{WithCause("Impossibile leggere il dizionario.", InFolder("Anello.priv"),
                            "il collegamento porta a se stesso")});
  EXPECT_EQ(dictionary.OffsetLunghezza(0), 0);
  EXPECT_EQ(dictionary.ContaLunghezza(0), 0);
}

}  // namespace
}  // namespace telarium
