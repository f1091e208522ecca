#include "platform/text.h"

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace telarium {
namespace {

TEST(Text, NumberIsWhatTheTextBeginsWith) {
  for (const char* text : {"7", "  7 ", "007", "7 1", "7.9", "7x13"})
    EXPECT_EQ(ValoreNumerico(text), 7);
  for (const char* text : {"", "   ", "x7", "-7", "\t7"})
    EXPECT_EQ(ValoreNumerico(text), 0) << text;
  for (const char* text : {"2147483647", "2147483648", "99999999999999999999999"}) {
    EXPECT_EQ(ValoreNumerico(text), 2147483647) << text;
  }
}

TEST(Text, DecimalNumbersOfAnyLengthKeepTheirPlace) {
  const std::string zeros(400, '0');
  const double largest = std::numeric_limits<double>::max();
  const std::pair<std::string, double> cases[] = {
      {zeros + "7.5", 7.5},           {"0." + zeros + "1", 0}, {"-." + zeros + "1", 0},
      {zeros + "." + zeros + "1", 0}, {"1" + zeros, largest},  {"-1" + zeros + ".5", -largest}};
  for (const auto& [text, value] : cases)
    EXPECT_EQ(ValoreDecimale(text), value) << text;
}

TEST(Text, NumbersAreRoundedAndWrittenAsTheFilesHaveThem) {
  EXPECT_EQ(FormaDiStampa(0) + FormaDiStampa(95) + FormaDiStampa(-1), " 0  95 -1 ");
  EXPECT_EQ(DueCifre(0) + DueCifre(9) + DueCifre(53), "000953");
  const std::pair<double, int> rounded[] = {{147.5, 148}, {372.5, 372},  {-0.5, 0},
                                            {-1.5, -2},   {2.500001, 3}, {2.49, 2}};
  for (const auto& [value, integer] : rounded)
    EXPECT_EQ(ArrotondaPari(value), integer) << value;
}

TEST(Text, LinesEndInAnyWay) {
  using Lines = std::vector<std::string_view>;
  const std::pair<Lines, Lines> cases[] = {
      // the lines, and the texts that have them
      {{}, {""}},
      {{""}, {"\n", "\r", "\r\n"}},
      {{"a", "b"}, {"a\nb", "a\rb", "a\r\nb", "a\nb\n", "a\rb\r", "a\r\nb\r\n"}},
      {{"a", "", "b"}, {"a\n\nb", "a\n\rb", "a\r\r\nb", "a\r\n\r\nb"}},
  };
  for (const auto& [expected, texts] : cases) {
    for (const std::string_view text : texts) {
      LettoreDiRighe reader(text);
      Lines lines;
      for (std::string_view line; reader.Prossima(line);)
        lines.push_back(line);
      EXPECT_EQ(lines, expected) << text;
    }
  }
  EXPECT_EQ(SenzaInterruzioni("a\r\nb\rc\nd\n\re\r"), "a b c d  e ");
}

TEST(Text, NumbersHavePointsBehindTheirThousands) {
  EXPECT_EQ(ConMigliaia(999), "999");
  EXPECT_EQ(ConMigliaia(1234), "1.234");
  EXPECT_EQ(ConMigliaia(-123456), "-123.456");
  EXPECT_EQ(ConMigliaia(1234567), "1.234.567");
}

}  // namespace
}  // namespace telarium
