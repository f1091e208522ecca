#include "crossworddialogs/model_file.h"

#include <gtest/gtest.h>

namespace telarium {
namespace {

TEST(ModelFile, ModelsEndWithALineOfOneCharacter) {
  const std::pair<const char*, std::vector<Modello>> cases[] = {
      {"", {}},
      {"AB\r\n*.\r\n-\r\n...\r\n-\r\n", {{"AB", "*."}, {"..."}}},
      {"AB\n.\nCD\nA\nEF\n ", {{"AB"}, {"CD"}, {"EF"}}},
      {"AB\r\n-\r\nCD\r\nEF\r\n", {{"AB"}}},
      {"\r\nAB\r\n\r\nCD\r\n\r\n-\r\n\r\n", {{"AB", "CD"}}},
      {"-\r\nAB\r\nc\t9\r\n-\r\n", {{}, {"AB", "c\t9"}}},
  };
  for (const auto& [text, models] : cases)
    EXPECT_EQ(InterpretaModelli(text), models) << text;
}

}  // namespace
}  // namespace telarium
