#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "dictionary/open_dictionary.h"
#include "dictionary/windows/Form4.h"
#include "median_keeper.h"
#include "model/state.h"
#include "offscreen_main.h"
#include "platform/temporary.h"
#include "support/numbered_words.h"
#include "support/scripted_platform.h"

// Measures the dictionary manager on the Italian dictionary, on a screen that nobody sees. The
// message loop runs as it does in the program.
namespace telarium {
namespace {

class PatientUser : public ScriptedUser {
 public:
  Risposta MostraMessaggio(const Messaggio&) override { return Risposta::Ok; }
  void CediAiMessaggi() override { QApplication::processEvents(); }
};

class BenchPlatform : public ScriptedPlatform {
 public:
  Utente& ChiUsa() override { return user_; }

 private:
  PatientUser user_;
};

// The manager with the Italian dictionary read.
class Loaded {
 public:
  Loaded() {
    ShowPainted(window);
    window.LeggiDizio();
    if (window.Label4->text() != QStringLiteral("274.092")) abort();
  }

  Form4 window{nullptr};
};

void BM_Read(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Form4 window(nullptr);
    ShowPainted(window);
    state.ResumeTiming();
    window.LeggiDizio();
    window.grab();
  }
}

void BM_Rebuild(benchmark::State& state) {
  Loaded loaded;
  for (auto _ : state)
    loaded.window.Command4->click();
  if (loaded.window.Label3->text() != QStringLiteral("Dizionario riscritto correttamente")) abort();
}

// A word that is new, and then one that is there: the check for a double passes the same list.
void BM_Add(benchmark::State& state) {
  Loaded loaded;
  const auto words = NumberedWords(30'000, 9);
  std::size_t next = 0;
  for (auto _ : state) {
    loaded.window.Text1->setText(QString::fromStdString(words[next++ % words.size()]));
    loaded.window.Command3->click();
  }
}

void BM_Import(benchmark::State& state) {
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
    std::string text;
    for (const std::string& word : NumberedWords(32'000, std::max(length, 4)))
      text.append(word).append("\r\n");
    const Percorso file = CartellaProgramma / (std::to_string(length) + ".txt");
    if (ScriviFile(file, text, Permanenza::Provvisoria)) abort();
  }
  Loaded loaded;
  for (auto _ : state)
    loaded.window.Command8->click();
  if (loaded.window.Label2[12]->text() != QStringLiteral("(32000) parole")) abort();
}

int Main() {
  const CartellaTemporanea temporary;
  BenchPlatform platform;
  ImpostaPiattaforma(&platform);
  CartellaProgramma = temporary.Nome();
  std::filesystem::copy(Percorso(TELARIUM_DATA_DIR) / DizionariDiSistema[0], CartellaProgramma);
  IlDizionario() = Dizionario(CartellaProgramma);
  if (!ApriDizionario(IlDizionario())) return 1;
  Register("read", BM_Read);
  Register("rebuild", BM_Rebuild);
  Register("add", BM_Add);
  Register("import", BM_Import);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  struct Row {
    const char* what;
    const char* name;
    const char* wanted;
  };
  const Row rows[] = {
      {"the Italian dictionary opened in `Form4`", "read", "under 400"},
      {"rebuild of it", "rebuild", "under 500"},
      {"a word added, with the check for a double", "add", "under 1"},
      {"import of thirteen lists of 32,000 words", "import", "under 5000"},
  };
  std::printf("\n| | Telarium, ms | wanted |\n|---|---|---|\n");
  for (const Row& row : rows)
    std::printf("| %s | %.2f | %s |\n", row.what, reporter.medians[row.name], row.wanted);
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  return telarium::RunOffscreen(argc, argv, telarium::Main);
}
