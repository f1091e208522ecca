#include "auxiliary/tips.h"

#include "editor/commands.h"
#include "editor/startup.h"
#include "platform/codepage.h"
#include "support/recording_window.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

constexpr const char* Setting = "Options/Show Tips at Startup";

using TipsTest = TelariumTest;

TEST_F(TipsTest, DrawsFromTheFirstToTheLastWithEqualChances) {
  WriteFile("tlrmtips.txt", "uno\r\ndu\xE8\r\ntre");
  machine.draws = {0.0};
  Suggerimenti tips;
  tips.Carica();
  EXPECT_EQ(tips.Testo(), "uno");
  for (const auto& [draw, tip] : {std::pair(0.34, "du\xE8"), {0.9999999, "tre"}, {0.33, "uno"}}) {
    machine.draws = {draw};
    tips.Estrai();
    EXPECT_EQ(tips.Testo(), tip);
  }
  WriteFile("tlrmtips.txt", "\xEF\xBB\xBFPerch\xC3\xA9");  // as most editors save it
  tips = {};
  tips.Carica();
  EXPECT_EQ(tips.Testo(), "Perch\xE9");
}

TEST_F(TipsTest, ToldWhatIsWrongWithTheFileAndNothingForAnEmptyOne) {
  const auto shown = [] {
    Suggerimenti tips;
    tips.Carica();
    tips.Estrai();
    return tips.Testo();
  };
  EXPECT_EQ(shown(),
            "Impossibile trovare il file TLRMTIPS.TXT\n\nCreare un file di testo denominato "
            "TLRMTIPS.TXT utilizzando il Blocco note e inserendo un suggerimento per ogni riga. "
            "Inserire il file nella stessa directory dell'applicazione. ");
  const Percorso file = WriteFile("TLRMTIPS.TXT", "");
  EXPECT_EQ(shown(), "");
  std::filesystem::resize_file(file, 5u << 20);
  EXPECT_EQ(shown(), "Il file TLRMTIPS.TXT non si può leggere: il file è troppo grande."_cp);
  Suggerimenti tips;
  std::error_code error;
  EXPECT_EQ(tips.LoadTips("", error), EsitoLettura::Assente);
}

TEST_F(TipsTest, AreShownUnlessTheSettingOfTheUserIsZero) {
  RecordingWindow window;
  const struct {
    std::optional<std::string> setting;
    bool shown;
  } cases[] = {{{}, true}, {"1", true}, {"0", false}, {"-1", true}, {"no", false}, {"", false}};
  for (const auto& [setting, shown] : cases) {
    SCOPED_TRACE(setting.value_or("none"));
    machine.settings.clear();
    if (setting) machine.settings[Setting] = *setting;
    window.shown.clear();
    ApriSuggerimenti();
    EXPECT_EQ(window.shown, std::vector<Modale>(shown ? 1 : 0, Modale::frmTip));
  }
  ScriviMostraSuggerimenti(true);
  EXPECT_EQ(machine.settings[Setting], "1");
  for (const bool again : {false, true}) {
    window.shown.clear();
    AttivaForm1();
    EXPECT_EQ(window.shown.empty(), again) << "at the first activation alone";
  }
  ScriviMostraSuggerimenti(false);
  EXPECT_EQ(machine.settings[Setting], "0");
}

}  // namespace
}  // namespace telarium
