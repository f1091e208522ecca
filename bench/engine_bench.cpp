#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>

#include <benchmark/benchmark.h>

#include "comparison_table.h"
#include "crossworddialogs/model_file.h"
#include "crossworddialogs/new_crossword.h"
#include "dictionary/dictionary_writer.h"
#include "dictionary/open_dictionary.h"
#include "editor/commit.h"
#include "editor/fill_command.h"
#include "fill/word_choice.h"
#include "median_keeper.h"
#include "model/crossword_file.h"
#include "model/words.h"
#include "plain_baseline.h"
#include "platform/temporary.h"
#include "process_cost.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

// Measures the hot routines of the engine side by side with the plain way of doing the same, and
// prints a table with the ratios behind the ordinary lines.
namespace telarium {
namespace {

constexpr int ModelNumber = 4;  // the first 13x13 grid of STANDARD.dfc, counted from 0
constexpr int FillSeeds = 3;    // fills to an iteration, each from a seed of its own

const Dizionario& Dictionary() {
  return IlDizionario();
}

// The longest section, in bytes, of the open dictionary.
int LongestSection() {
  int longest = MinLunghezza;
  const auto bytes = [](int length) {
    return length * Dictionary().ContaLunghezza(length - MinLunghezza);
  };
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
    if (bytes(length) > bytes(longest)) longest = length;
  }
  return longest;
}

std::string BlankPattern() {
  return std::string(static_cast<std::size_t>(LongestSection()), ' ');
}

std::string TwoLetterPattern() {
  std::string pattern = BlankPattern();
  pattern[1] = 'A';
  pattern[4] = 'T';
  return pattern;
}

std::string MissingWord() {
  return std::string(static_cast<std::size_t>(LongestSection()), 'X');
}

std::vector<std::string> ModelRows() {
  std::vector<Modello> models;
  if (!CaricaModelli(CartellaProgramma / NomeModelliIniziale, models)) abort();
  return models.at(ModelNumber);
}

void BM_CandidatesPlain(benchmark::State& state, const std::string& pattern) {
  for (auto _ : state)
    benchmark::DoNotOptimize(plain::FittingWords(Dictionary(), pattern));
}

void BM_Candidates(benchmark::State& state, const std::string& pattern) {
  SceltaDiParole choice(Dictionary(), [] { return 0.0; });
  for (auto _ : state)
    benchmark::DoNotOptimize(choice.CercaCandidati(pattern));
}

void BM_MissingWordPlain(benchmark::State& state) {
  const std::string word = MissingWord();
  for (auto _ : state)
    benchmark::DoNotOptimize(plain::WordExists(Dictionary(), word));
}

void BM_MissingWord(benchmark::State& state) {
  SceltaDiParole choice(Dictionary(), [] { return 0.0; });
  const std::string word = MissingWord();
  for (auto _ : state)
    benchmark::DoNotOptimize(choice.ParolaEsiste(word));
}

std::vector<std::string> PlainFillFromSeed(unsigned seed) {
  SorgenteCasuale random(seed);
  return plain::Fill(Dictionary(), ModelRows(), [&] { return random.Prossimo(); });
}

std::vector<std::string> FillFromSeed(unsigned seed, ScriptedPlatform& platform) {
  platform.machine.random = SorgenteCasuale(seed);
  ComandoEstrazione().EseguiEstrazione();
  platform.user.TakeMessages();
  std::vector<std::string> rows;
  for (int r = 1; r <= NumRighe; ++r) {
    rows.emplace_back();
    for (int c = 1; c <= NumColonne; ++c)
      rows.back() += LetteraCasella(c, r);
  }
  return rows;
}

void BM_FillPlain(benchmark::State& state) {
  for (auto _ : state) {
    for (unsigned seed = 0; seed < FillSeeds; ++seed) {
      benchmark::DoNotOptimize(PlainFillFromSeed(seed));
    }
  }
}

void BM_Fill(benchmark::State& state, ScriptedPlatform& platform) {
  for (auto _ : state) {
    for (unsigned seed = 0; seed < FillSeeds; ++seed) {
      benchmark::DoNotOptimize(FillFromSeed(seed, platform));
    }
  }
}

// A 53x30 crossword with a letter in every white cell, a black one now and then, and a clue of 60
// characters for each word.
Percorso WriteFullCrossword(const Percorso& folder) {
  NuovoVuoto(MaxColonne, MaxRighe);
  SetCells([](int c, int r) {
    return (c + 3 * r) % 7 == 0 ? CellaNera : static_cast<char>('A' + c % 21);
  });
  SetClues([](const Slot&) { return std::string(60, 'x'); });
  const Percorso path = folder / "pieno.tlrm";
  if (!ScriviCruciverba(path)) abort();
  return path;
}

void BM_ReadFullCrossword(benchmark::State& state, const Percorso& path) {
  for (auto _ : state)
    benchmark::DoNotOptimize(ApriCruciverba(path));
}

// The plain word list of the open dictionary, one word a line.
std::string WordList() {
  std::string list;
  for (int length = MinLunghezza; length <= MaxLunghezza; ++length) {
    for (int n = 1; n <= Dictionary().ContaLunghezza(length - MinLunghezza); ++n) {
      list += Dictionary().LeggiParola(static_cast<std::int16_t>(n), length) + '\n';
    }
  }
  return list;
}

void BM_BuildDictionary(benchmark::State& state, const std::string& list, const Percorso& folder) {
  for (auto _ : state) {
    ListeDiParole lists;
    AggiungiLista(list, lists);
    OrdinaListe(lists);
    if (!ScriviDizionario(folder / "nuovo.dat", lists).errore.empty()) abort();
  }
}

constexpr ComparisonRow Rows[] = {
    {"`CercaCandidati`, longest section, blank pattern", "blank/plain", "blank/telarium", 1,
     "at least 100"},
    {"`CercaCandidati`, longest section, two letters", "two/plain", "two/telarium", 1,
     "at least 100"},
    {"`ParolaEsiste`, nothing found", "missing/plain", "missing/telarium", 1, "at least 100"},
    {"one whole fill, 13x13 model, dead ends accepted", "fill/plain", "fill/telarium", FillSeeds,
     "at least 50, under 10 ms"},
    {"Italian dictionary from its word list", nullptr, "build/telarium", 1, "under 1 s"},
    {"`ApriCruciverba`, full 53x30", nullptr, "read/telarium", 1, "under 1 ms"},
};

void PrintTable(const std::map<std::string, double>& medians, const ProcessCost& process) {
  PrintComparison(Rows, medians, {"ms", 1, 3});
  std::printf("| `telar estrai` of that grid, whole process | | %.1f | | under 50 ms |\n",
              process.milliseconds);
  std::printf("| its peak memory | | %.1f MiB | | under 16 MiB |\n", process.peakMebibytes);
}

void RegisterAll(ScriptedPlatform& platform, const Percorso& full, const std::string& list,
                 const Percorso& folder) {
  Register("blank/plain", BM_CandidatesPlain, BlankPattern());
  Register("blank/telarium", BM_Candidates, BlankPattern());
  Register("two/plain", BM_CandidatesPlain, TwoLetterPattern());
  Register("two/telarium", BM_Candidates, TwoLetterPattern());
  Register("missing/plain", BM_MissingWordPlain);
  Register("missing/telarium", BM_MissingWord);
  Register("fill/plain", BM_FillPlain);
  Register("fill/telarium", [&](benchmark::State& state) { BM_Fill(state, platform); });
  Register("build/telarium", BM_BuildDictionary, list, folder);
  Register("read/telarium", BM_ReadFullCrossword, full);
}

void OpenModelGrid() {
  if (NuovoDaModello(CartellaProgramma / NomeModelliIniziale, ModelNumber) != EsitoNuovo::Fatto) {
    abort();
  }
  RiprendiSchema();
}

// Both ways must give the same grid from the same draws, or the comparison means nothing.
void RequireEqualFills(ScriptedPlatform& platform) {
  OpenModelGrid();
  for (unsigned seed = 0; seed < FillSeeds; ++seed) {
    if (FillFromSeed(seed, platform) == PlainFillFromSeed(seed)) continue;
    std::fprintf(stderr, "the two fills differ from seed %u\n", seed);
    std::exit(1);
  }
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const CartellaTemporanea temporary;
  const auto telar = [](std::vector<std::string> words) {
    words.insert(words.begin(), {TELAR_PROGRAM, "--cartella", TELARIUM_DATA_DIR});
    return words;
  };
  const std::string grid = (temporary.Nome() / "griglia.tlrm").string();
  MeasureProcess(telar({"nuovo", grid, "--modello", std::to_string(ModelNumber + 1)}), 1);
  const ProcessCost process = MeasureProcess(telar({"estrai", grid, grid + ".out"}), 41);
  if (!process.succeeded) std::fprintf(stderr, "telar estrai failed\n");

  ScriptedPlatform platform;
  platform.user.AnswerAllDeadEnds(Risposta::Si);
  ImpostaPiattaforma(&platform);
  CartellaProgramma = TELARIUM_DATA_DIR;
  CartellaIstantanea = temporary.Nome();
  IlDizionario() = Dizionario(CartellaProgramma);
  ApriDizionario(IlDizionario());
  const Percorso full = WriteFullCrossword(temporary.Nome());
  RequireEqualFills(platform);
  RegisterAll(platform, full, WordList(), temporary.Nome());

  MedianKeeper reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintTable(reporter.medians, process);
  return process.succeeded ? 0 : 1;
}

}  // namespace
}  // namespace telarium

int main(int argc, char** argv) {
  return telarium::Main(argc, argv);
}
