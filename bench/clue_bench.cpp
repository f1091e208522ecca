#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "clues/bulk.h"
#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/encyclopedia_writer.h"
#include "clues/import.h"
#include "clues/windows/TelarDef.h"
#include "clues/windows/frmParole.h"
#include "clues/windows/telariummdb.h"
#include "crossworddialogs/new_crossword.h"
#include "dictionary/open_dictionary.h"
#include "editor/settings.h"
#include "median_keeper.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "model/words.h"
#include "offscreen_main.h"
#include "platform/temporary.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

// Measures the bulk moves and the import of clues, and the windows over the encyclopedia, on the
// real store and on a screen that nobody sees.
namespace telarium {
namespace {

constexpr int Pairs = 50'000;

Percorso folder;

void Expect(bool condition) {
  if (!condition) abort();
}

// A folder in which each benchmark begins with the store that the build has made.
void FreshStore() {
  std::filesystem::copy_file(Percorso(TELARIUM_DATA_DIR) / NomeEnciclopedia,
                             folder / NomeEnciclopedia,
                             std::filesystem::copy_options::overwrite_existing);
}

std::vector<std::string> WordsOfTheStore(std::size_t length) {
  std::vector<std::string> words;
  for (const ChiaveRiga& key : ApriEnciclopedia()->Chiavi())
    if (key.parola.size() == length) words.push_back(key.parola);
  return words;
}

// A grid of the largest size in which each horizontal word of five letters is one of the store's;
// the vertical ones are as they come.
void FillGrid() {
  Expect(NuovoVuoto(MaxColonne, MaxRighe) == EsitoNuovo::Fatto);
  SetCells([](int c, int r) { return (c + r) % 6 == 0 ? CellaNera : CellaVuota; });
  const std::vector<std::string> words = WordsOfTheStore(5);
  std::size_t next = 0;
  Change([&](Cruciverba& crossword) {
    PerOgniParola(Orizzontale, [&](const Slot& slot) {
      const std::string& word = words[(next += 17) % words.size()];
      for (int k = 1; k <= slot.lunghezza; ++k)
        ScriviCarattere(crossword, slot.Cella(k), word[static_cast<std::size_t>(k) - 1]);
    });
  });
  // Incomplete words at the edges too.
  SetCells([](int c, int r) {
    const char letter = LetteraCasella(c, r);
    return letter == CellaVuota ? 'A' : letter;
  });
}

int CountWords() {
  int words = 0;
  PerOgniParola([&](const Slot&) { ++words; });
  return words;
}

void BM_Fetch(benchmark::State& state) {
  FreshStore();
  for (auto _ : state)
    Expect(PrelevaTutte(ModoTutte).has_value());
}

// The plain way: all rows in memory, and a look at each from the first one for every word.
void BM_PlainFetch(benchmark::State& state) {
  FreshStore();
  for (auto _ : state) {
    const EnciclopediaAperta store = ApriEnciclopedia();
    const std::vector<ChiaveRiga> keys = store->Chiavi();
    std::vector<RigaParole> rows;
    for (const ChiaveRiga& key : keys)
      rows.push_back(store->LeggiRiga(key.numero));
    SetClues([&](const Slot& slot) -> std::string {
      const std::string word = IlDocumento().Derivata().Lettere(slot);
      const auto row = std::find_if(rows.begin(), rows.end(),
                                    [&](const RigaParole& one) { return one.parola == word; });
      if (row == rows.end()) return {};
      std::string text = row->facili.value_or("") + "\r\n" + row->difficili.value_or("");
      spezzatesto(text);
      return ElencoDefinizioni(1);
    });
  }
}

void BM_Save(benchmark::State& state) {
  int round = 0;
  for (auto _ : state) {
    state.PauseTiming();
    FreshStore();
    ++round;
    SetClues([&](const Slot& slot) {
      const auto [c, r] = slot.inizio;
      return Unisci("Nuova ", c, ' ', r, ' ', slot.direzione, round);
    });
    state.ResumeTiming();
    Expect(SalvaTutte().has_value());
  }
}

void BM_Import(benchmark::State& state) {
  std::ofstream file(folder / NomeFileDefinizioni, std::ios::binary);
  for (int n = 0; n < Pairs; ++n)
    file << "PAROLA" << n << "\r\nDefinizione numero " << n << "\r\n";
  file.close();
  for (auto _ : state) {
    state.PauseTiming();
    Expect(ScriviEnciclopedia({}).errore.empty());
    state.ResumeTiming();
    Expect(ImportaDefinizioni().has_value());
  }
}

// The longest section with all places free, until the list stands on the screen.
void BM_MaskedSearch(benchmark::State& state) {
  IlDizionario() = Dizionario(TELARIUM_DATA_DIR);
  Expect(ApriDizionario(IlDizionario()));
  Expect(NuovoVuoto(12, 3) == EsitoNuovo::Fatto);
  TelarDef window({.testo = {ParolaCasella(1, 1, Orizzontale), {}}, .numero = 1}, nullptr);
  ShowPainted(window);
  for (auto _ : state) {
    window.Command3D4->click();
    window.grab();
    Expect(window.Combo1->count() == MaxParole);
  }
}

// Resident memory of this process, in mebibytes.
double MemoryInUse() {
  std::ifstream file("/proc/self/statm");
  double pages = 0, resident = 0;
  file >> pages >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

void BM_Table(benchmark::State& state) {
  FreshStore();
  for (auto _ : state) {
    frmParole browser(nullptr);
    ShowPainted(browser);
  }
}

// The word that stands last, from the first row on.
void BM_SearchByBeginning(benchmark::State& state) {
  FreshStore();
  RigheEnciclopedia rows;
  rows.Apri();
  rows.Ultimo();
  const std::string last = rows.Testo(CampoParole::Parola);
  for (auto _ : state) {
    rows.Primo();
    Expect(rows.CercaInizio(last) && rows.Posizione() == rows.NumeroRighe());
  }
}

// What a browser adds to the memory of a process while it is open.
template <class Browser>
double MemoryOf() {
  const double before = MemoryInUse();
  Browser browser(nullptr);
  ShowPainted(browser);
  return MemoryInUse() - before;
}

constexpr const char* MemoryOption = "--memory-of=";

// The same, in a process of its own: memory that one browser has freed would serve the next.
double MemoryInAProcess(const std::string& browser) {
  const std::string command = Unisci(std::filesystem::read_symlink("/proc/self/exe").string(), ' ',
                                     MemoryOption, browser, " 2>/dev/null");
  std::FILE* output = popen(command.c_str(), "r");
  double mebibytes = -1;
  Expect(output && std::fscanf(output, "%lf", &mebibytes) == 1 && pclose(output) == 0);
  return mebibytes;
}

// What a process of its own prints.
template <class Browser>
int PrintMemory() {
  const CartellaTemporanea temporary;
  CartellaProgramma = folder = temporary.Nome();
  ScriptedPlatform platform;
  ImpostaPiattaforma(&platform);
  FreshStore();
  std::printf("%f\n", MemoryOf<Browser>());
  return 0;
}

int Main() {
  const CartellaTemporanea temporary;
  folder = temporary.Nome();
  CartellaProgramma = folder;
  ScriptedPlatform platform;
  ImpostaPiattaforma(&platform);
  ImpostazioniIniziali();
  FreshStore();
  const auto rows = ApriEnciclopedia()->Chiavi().size();
  FillGrid();
  const int words = CountWords();
  Register("fetch", BM_Fetch);
  Register("plain_fetch", BM_PlainFetch);
  Register("save", BM_Save);
  Register("import", BM_Import);
  Register("masked_search", BM_MaskedSearch);
  Register("table", BM_Table);
  Register("search", BM_SearchByBeginning);
  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  auto& ms = reporter.medians;
  std::printf("\n| | Telarium, ms | wanted |\n|---|---|---|\n");
  std::printf(
      "| fetch of the clues of a full 53x30 (%d words), opening included | %.1f | under 100 |\n",
      words, ms["fetch"]);
  std::printf("| the same by a look at all rows for each word, %.0f times as long | %.1f | |\n",
              ms["plain_fetch"] / ms["fetch"], ms["plain_fetch"]);
  std::printf("| save of its clues, all new | %.1f | under 300 |\n", ms["save"]);
  std::printf("| import of %d pairs into an empty store | %.0f | under 5000 |\n", Pairs,
              ms["import"]);
  std::printf("| masked search of 32,767 words, list on the screen | %.1f | under 100 |\n",
              ms["masked_search"]);
  std::printf("| `frmParole` on %zu rows, first rows on the screen | %.0f | under 200 |\n", rows,
              ms["table"]);
  std::printf("| `CercaInizio` through all of them | %.2f | under 5 |\n", ms["search"]);
  std::printf("| memory while `telariummdb` is open, MiB more | %.0f | under 60 |\n",
              MemoryInAProcess("telariummdb"));
  std::printf("| memory while `frmParole` is open, MiB more | %.0f | under 60 |\n",
              MemoryInAProcess("frmParole"));
  return 0;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  using namespace telarium;
  const std::string_view option = argc == 2 ? argv[1] : "";
  auto* run = Main;
  if (option == Unisci(MemoryOption, "telariummdb")) run = PrintMemory<telariummdb>;
  if (option == Unisci(MemoryOption, "frmParole")) run = PrintMemory<frmParole>;
  return RunOffscreen(argc, argv, run);
}
