#include "editor/font_choice.h"

#include "editor/settings.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

class FontChoiceTest : public TelariumTest {
 protected:
  void SetUp() override {
    TelariumTest::SetUp();
    platform.hasWindow = true;
    platform.printer.refused = "Strano";
  }

  // The last calls on the main window's surface.
  std::vector<std::string> LastCalls(std::size_t count) const {
    const std::vector<std::string>& calls = platform.window.calls;
    return {calls.end() - static_cast<std::ptrdiff_t>(std::min(count, calls.size())), calls.end()};
  }

  void ExpectType(const char* typeface, bool italic, bool bold) {
    EXPECT_EQ(NomeFont, typeface);
    EXPECT_EQ(LastCalls(3), (std::vector<std::string>{std::string("Carattere ") + typeface,
                                                      italic ? "Corsivo si" : "Corsivo no",
                                                      bold ? "Grassetto si" : "Grassetto no"}));
    if (!platform.hasPrinter) return;
    EXPECT_EQ(platform.printer.typeface, typeface);
    EXPECT_EQ(platform.printer.italic, italic);
    EXPECT_EQ(platform.printer.bold, bold);
  }

  const std::vector<std::string> refusal{
      std::string("Font scelto non disponibile, verrà scelto l'Arial a video ed in stampa."_cp)};
};

TEST_F(FontChoiceTest, SetsNamePrinterAndWindowAlike) {
  ApplicaCarattere("Liberation Serif", true, true);
  ExpectType("Liberation Serif", true, true);
  ApplicaCarattere("Liberation Sans", false, false);
  ExpectType("Liberation Sans", false, false);
  platform.hasWindow = false;
  ApplicaCarattere("Liberation Mono", false, true);
  EXPECT_EQ(platform.printer.typeface, "Liberation Mono");
  EXPECT_TRUE(user.TakeTexts().empty());
}

TEST_F(FontChoiceTest, ARefusedTypefaceBecomesArialAndKeepsTheChosenStyle) {
  ApplicaCarattere("Strano", true, false);
  EXPECT_EQ(user.TakeTexts(), refusal);
  ExpectType("Arial", true, false);
}

TEST_F(FontChoiceTest, WithoutAPrinterItSaysSoOnceAndTakesArial) {
  platform.hasPrinter = false;
  ApplicaCarattere("Liberation Serif", false, true);
  EXPECT_EQ(user.TakeTexts(), refusal);
  ExpectType("Arial", false, true);
}

}  // namespace
}  // namespace telarium
