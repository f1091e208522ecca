#include <algorithm>
#include <set>

#include "clues/encyclopedia.h"
#include "crossworddialogs/model_file.h"
#include "dictionary/masked_search.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "platform/codepage.h"
#include "support/telarium_test.h"

// The contents that lie beside the program: what a user sees first.
namespace telarium {
namespace {

class DataTest : public TelariumTest {
 protected:
  static Percorso Data(const Percorso& name) { return Percorso(TELARIUM_DATA_DIR) / name; }

  // Makes a model the current grid.
  static void Show(Modello model) {
    for (std::string& row : model)
      std::replace(row.begin(), row.end(), CellaNera, '#');
    Draw(model);
  }
};

int CountBlack(const Modello& model) {
  int black = 0;
  for (const std::string& row : model) {
    black += static_cast<int>(std::count(row.begin(), row.end(), CellaNera));
  }
  return black;
}

bool IsSymmetric(const Modello& model) {
  std::string forward;
  for (const std::string& row : model)
    forward += row;
  return std::equal(forward.begin(), forward.end(), forward.rbegin());
}

// White cells reachable from the first one.
std::size_t ConnectedWhite() {
  std::set<std::pair<int, int>> seen;
  std::vector<Casella> open;
  const auto visit = [&](int c, int r) {
    if (c < 1 || r < 1 || c > NumColonne || r > NumRighe || TipoCasella(c, r) == 0) return;
    if (seen.insert({c, r}).second) open.push_back({c, r});
  };
  for (int c = 1; open.empty(); ++c)
    visit(c, 1);
  while (!open.empty()) {
    const auto [c, r] = open.back();
    open.pop_back();
    visit(c - 1, r);
    visit(c + 1, r);
    visit(c, r - 1);
    visit(c, r + 1);
  }
  return seen.size();
}

struct WordCounts {
  int words = 0;
  int longest = 0;
  int cells = 0;  // cells of all words, those of a crossing counted twice
};

WordCounts CountWords() {
  WordCounts counts;
  PerOgniParola([&](const Slot& slot) {
    ++counts.words;
    counts.longest = std::max(counts.longest, slot.lunghezza);
    counts.cells += slot.lunghezza;
  });
  return counts;
}

TEST_F(DataTest, StandardModelsAreGoodGrids) {
  std::vector<Modello> models;
  ASSERT_TRUE(CaricaModelli(Data("STANDARD.dfc"), models));
  ASSERT_EQ(models.size(), 12u);
  int symmetric = 0, withoutVeryLong = 0;
  for (std::size_t i = 0; i < models.size(); ++i) {
    const Modello& model = models[i];
    SCOPED_TRACE("model " + std::to_string(i + 1));
    ASSERT_TRUE(ModelloValido(model));
    EXPECT_GE(model.front().size(), 9u);
    EXPECT_LE(model.front().size(), 26u);
    EXPECT_GE(model.size(), 9u);
    EXPECT_LE(model.size(), 20u);
    Show(model);
    const int cells = NumColonne * NumRighe, black = CountBlack(model), white = cells - black;
    EXPECT_GE(100 * black, 14 * cells);
    EXPECT_LE(100 * black, 20 * cells);
    EXPECT_EQ(ConnectedWhite(), static_cast<std::size_t>(white)) << "separate areas";
    const WordCounts counts = CountWords();
    EXPECT_LE(2 * white - counts.cells, white / 20) << "too many unchecked cells";
    for (const std::string& row : model)
      EXPECT_EQ(row.find("***"), std::string::npos);
    symmetric += IsSymmetric(model);
    withoutVeryLong += counts.longest < 16;
  }
  EXPECT_GE(symmetric, 6);
  EXPECT_GE(withoutVeryLong, 6);
}

TEST_F(DataTest, EncyclopediaHasCluesForEveryShortestWord) {
  CartellaProgramma = TELARIUM_DATA_DIR;
  dictionary = Dizionario(CartellaProgramma);
  ASSERT_TRUE(ApriDizionario(dictionary));
  const EnciclopediaAperta store = ApriEnciclopedia();
  EXPECT_GE(store->Chiavi().size(), 173'128u);
  EXPECT_EQ(CercaParole(dictionary, "   ",
                        [&](std::string_view word) {
                          EXPECT_TRUE(store->CercaParola(word) && store->LeggiFacili()) << word;
                        })
                .trovate,
            584);
  ASSERT_TRUE(store->CercaParola("ZEN"));
  EXPECT_EQ(store->LeggiDifficili(), "Fa meditare sull'applauso di una mano sola");
}

TEST_F(DataTest, TipsAreManyAndShortLinesOfTheCodePage) {
  const std::string file = ReadFile(Data("TLRMTIPS.TXT"));
  EXPECT_EQ(DaUtf8Esatto(file), std::nullopt) << "not in UTF-8";
  std::set<std::string_view> tips;
  std::string_view rest = file;
  for (std::size_t end; (end = rest.find("\r\n")) != std::string_view::npos;) {
    const std::string_view tip = rest.substr(0, end);
    EXPECT_TRUE(tips.insert(tip).second) << tip;
    EXPECT_TRUE(tip.size() >= 40 && tip.size() <= 300) << tip;
    EXPECT_EQ(tip.find_first_of("\r\n\t"), std::string_view::npos) << tip;
    rest.remove_prefix(end + 2);
  }
  EXPECT_EQ(rest, "") << "each line has its end";
  EXPECT_GE(tips.size(), 40u);
}

TEST_F(DataTest, SettingsFileHoldsTheInitialSettings) {
  ImpostazioniIniziali();
  ScriviImpostazioni();
  EXPECT_EQ(ReadFile(InFolder("telarium.INI")), ReadFile(Data("telarium.INI")));
}

TEST_F(DataTest, SampleCrosswordsAreComplete) {
  const Percorso folder = Data("Archivio cruciverba");
  const std::vector<Percorso> samples = ElencaFile(folder, "*.tlrm");
  EXPECT_EQ(samples.size(), 3u);
  for (const Percorso& sample : samples) {
    SCOPED_TRACE(sample.string());
    ASSERT_EQ(ApriCruciverba(folder / sample), Apertura::Intera);
    RidisegnaSchema();
    PerOgniParola([](const Slot& slot) {
      const auto [c, r] = slot.inizio;
      const std::string& word = ParolaCasella(c, r, slot.direzione);
      EXPECT_EQ(word.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), std::string::npos) << word;
      EXPECT_NE(Definizione(c, r, slot.direzione), "") << word << " has no clue";
    });
    const Percorso copy = InFolder("copia.tlrm");
    ASSERT_TRUE(ScriviCruciverba(copy));
    EXPECT_EQ(FirstDifference(ReadFile(copy), ReadFile(folder / sample)), "");
  }
}

// The words of a list of the sources, by its first field.
std::multiset<std::string> FirstFields(const char* name) {
  std::string text;
  EXPECT_EQ(LeggiFile(Percorso(TELARIUM_SOURCE_DIR) / name, 1u << 20, text), EsitoLettura::Letto);
  std::multiset<std::string> words;
  LettoreDiRighe lines(text);
  for (std::string_view line; lines.Prossima(line);)
    words.insert(Maiuscole(line.substr(0, line.find('\t'))));
  return words;
}

TEST_F(DataTest, EachEntryOfTheKitHasClues) {
  const auto entries = FirstFields("data/lexicon/sigle.tsv");
  const auto clues = FirstFields("data/clues/sigle.tsv");
  EXPECT_GE(entries.size(), 330u);
  EXPECT_EQ(std::set(entries.begin(), entries.end()), std::set(clues.begin(), clues.end()));
  for (const std::string& word : entries)
    EXPECT_EQ(word.size(), 2u) << word;
}

}  // namespace
}  // namespace telarium
