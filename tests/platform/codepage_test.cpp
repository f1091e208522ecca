#include "platform/codepage.h"

#include <gtest/gtest.h>

namespace telarium {
namespace {

static_assert("La parola è già qui – 5 €"_cp == "La parola \xE8 gi\xE0 qui \x96 5 \x80");

TEST(CodePage, EveryByteReachesUtf8AndComesBack) {
  std::string bytes;
  for (int i = 0; i < 256; ++i)
    bytes += static_cast<char>(i);
  const std::string utf8 =
      bytes.substr(0, 128) +
      "€\xC2\x81‚ƒ„…†‡ˆ‰Š‹Œ\xC2\x8DŽ\xC2\x8F"
      "\xC2\x90‘’“”•–—˜™š›œ\xC2\x9DžŸ\xC2\xA0¡¢£¤¥¦§¨©ª«¬\xC2\xAD®¯°±²³´µ¶·¸¹º»¼½¾¿"
      "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";
  EXPECT_EQ(AUtf8(bytes), utf8);
  EXPECT_EQ(DaUtf8(utf8), bytes);
  EXPECT_EQ(DaUtf8Esatto(utf8), bytes);
}

TEST(CodePage, LettersHaveCapitalsAndAllElseStays) {
  EXPECT_EQ(Maiuscole("abz àåèéìòöøùýþ çñ œšžÿ"_cp), "ABZ ÀÅÈÉÌÒÖØÙÝÞ ÇÑ ŒŠŽŸ"_cp);
  constexpr auto unchanged = "AZ @[`{ 09 ß ÷ × ƒ ª º µ ÀÞŒŠŽŸ •—™ ·¿"_cp;
  EXPECT_EQ(Maiuscole(unchanged), unchanged);
}

TEST(CodePage, WhatHasNoPlaceBecomesAQuestionMarkOrNoTextAtAll) {
  // Not in the code page; bytes of no sequence; cut ones.
  EXPECT_EQ(DaUtf8("5→6 𝄞 \xC2\x80 \xFF \x80z \xE2\x82z \xC3"), "5?6 ? ? ? ?z ??z ?");
  // Longer forms than needed; a surrogate; a value past Unicode.
  EXPECT_EQ(DaUtf8("\xC1\x81 \xE0\x80\xAF \xF0\x80\x82\xAC"), "?? ??? ????");
  EXPECT_EQ(DaUtf8("\xED\xA0\x80 \xF4\x90\x80\x80"), "??? ????");
  EXPECT_EQ(DaUtf8Esatto("5→6"), std::nullopt);
  EXPECT_EQ(DaUtf8Esatto("è\xC3"), std::nullopt);
}

}  // namespace
}  // namespace telarium
