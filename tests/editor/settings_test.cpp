#include "editor/settings.h"

#include <filesystem>
#include <limits>

#include "platform/text.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using SettingsTest = TelariumTest;

constexpr const char* Sample =
    "RettangoloParola= 0 \r\n"
    "TastoSin=-1 \r\n"
    "StampaSoluzioni=-1 \r\n"
    "PercentualeRiquadro= 95 \r\n"
    "SpessoreBordo= 2 \r\n"
    "AltezzaCaratteri= 52 \r\n"
    "AltezzaNumeri= 22 \r\n"
    "DistanzaDaSpigolo= 3 \r\n"
    "DistanzaDaCentro=-4 \r\n";

TEST_F(SettingsTest, AFileReadsAndWritesBackToTheByteUnderItsOwnName) {
  WriteFile("Telarium.Ini", Sample);
  EXPECT_EQ(LeggiImpostazioni(), EsitoImpostazioni::Lette);
  EXPECT_EQ(RettangoloParola, 0);
  EXPECT_EQ(DistanzaDaCentro, -4);
  EXPECT_EQ(PercentualeRiquadro, 95);
  AltezzaNumeri = 25;
  ScriviImpostazioni();
  std::string expected = Sample;
  expected.replace(expected.find("AltezzaNumeri= 22"), 17, "AltezzaNumeri= 25");
  EXPECT_EQ(FirstDifference(ReadFile(InFolder("Telarium.Ini")), expected), "");
  EXPECT_FALSE(std::filesystem::exists(InFolder("telarium.INI"))) << "a second file was made";
}

TEST_F(SettingsTest, TheOrderOfTheLinesAndUnknownOnesMeanNothing) {
  std::string backwards = "; impostazioni\r\nColore= 7 \r\n";
  const std::string sample = Sample;
  for (std::size_t end = sample.size(); end > 0;) {
    const std::size_t line = end > 2 ? sample.rfind('\n', end - 2) : std::string::npos;
    const std::size_t begin = line == std::string::npos ? 0 : line + 1;
    backwards += sample.substr(begin, end - begin) + "[Altro]\r\n";
    end = begin;
  }
  WriteFile("telarium.INI", backwards);
  EXPECT_EQ(LeggiImpostazioni(), EsitoImpostazioni::Lette);
  ScriviImpostazioni();
  EXPECT_EQ(FirstDifference(ReadFile(InFolder("telarium.INI")), Sample), "");
}

TEST_F(SettingsTest, TakesTheFirstKeyOfALineAndWhatItsNumberIs) {
  struct Case {
    const char* text;
    const std::int16_t& target;
    int value;
  };
  for (const Case& one : {
           Case{"xx AltezzaNumeri= 7 TastoSin= 1", TastoSin, Vero},  // the earlier key of the table
           Case{"AltezzaNumeri=12abc", AltezzaNumeri, 12},
           Case{"AltezzaNumeri=   8", AltezzaNumeri, 8},
           Case{"AltezzaNumeri=99999999999", AltezzaNumeri, 32767},
           Case{"DistanzaDaCentro=-99999999999", DistanzaDaCentro, -32768},
           Case{"DistanzaDaCentro=-5", DistanzaDaCentro, -5},
           Case{"AltezzaNumeri=2.5", AltezzaNumeri, 2},
           Case{"AltezzaNumeri=inf", AltezzaNumeri, 0},
           Case{"AltezzaNumeri=--5", AltezzaNumeri, 0},
           Case{"StampaSoluzioni=7", StampaSoluzioni, 7},
           Case{"RettangoloParola=7", RettangoloParola, Vero},
           Case{"TastoSin=0.3", TastoSin, Vero},
           Case{"a=4 AltezzaNumeri=9", AltezzaNumeri, 4},  // behind the first "="
           Case{"AltezzaNumeri 9", AltezzaNumeri, 33},
           Case{"altezzanumeri=9", AltezzaNumeri, 33},
       }) {
    Forget();
    AltezzaNumeri = 33;
    InterpretaImpostazioni(one.text);
    EXPECT_EQ(one.target, one.value) << one.text;
  }
}

TEST_F(SettingsTest, AMissingKeyLeavesItsSettingAndAMissingFileIsTold) {
  EXPECT_EQ(LeggiImpostazioni(), EsitoImpostazioni::Assenti);
  WriteFile("telarium.INI", std::string("\0\xFF"
                                        "garbage\r\n=\n\n=5",
                                        16) +
                                "\nSpessoreBordo=3");
  EXPECT_EQ(LeggiImpostazioni(), EsitoImpostazioni::Lette);
  EXPECT_EQ(SpessoreBordo, 3);
  EXPECT_EQ(AltezzaCaratteri, 0);
  EXPECT_EQ(RettangoloParola, Vero) << "checked until the file says otherwise";
}

TEST_F(SettingsTest, AFailedWriteIsTold) {
  CartellaProgramma = InFolder("nowhere");
  ScriviImpostazioni();
  const auto texts = user.TakeTexts();
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_TRUE(texts[0].starts_with("Attenzione, si \xE8 verificato un errore di scrittura"));
  EXPECT_TRUE(texts[0].ends_with(WithCause("non sia un CD-ROM", InFolder("nowhere/telarium.INI"),
                                           "il file o la cartella non esiste")));
}

}  // namespace
}  // namespace telarium
